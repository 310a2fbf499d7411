#ifndef QUEN_3_1_RESULTS_RESULT_COLLECTOR_H
#define QUEN_3_1_RESULTS_RESULT_COLLECTOR_H

namespace quen_3_1 {

class OptionDescription;
struct OptionData;

// What recognizers deliver finished option occurrences to.
class IResultCollector {
public:
    // Stores one occurrence of `option`, taking the converted values out of
    // `data` (they are left empty) instead of copying them. Returns 0.
    virtual int store(OptionDescription const& option, OptionData& data) = 0;

protected:
    ~IResultCollector() = default;
};

}  // namespace quen_3_1

#endif
