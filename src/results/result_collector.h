#ifndef QUEN_3_1_RESULTS_RESULT_COLLECTOR_H
#define QUEN_3_1_RESULTS_RESULT_COLLECTOR_H

namespace quen_3_1 {

class OptionDescription;
struct OptionData;

// What recognizers deliver finished option occurrences to.
class IResultCollector {
public:
    // Stores one occurrence of `option`. Returns 0.
    virtual int store(OptionDescription const& option, OptionData const& data) = 0;

protected:
    ~IResultCollector() = default;
};

}  // namespace quen_3_1

#endif
