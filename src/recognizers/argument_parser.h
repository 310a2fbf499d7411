#ifndef QUEN_3_1_RECOGNIZERS_ARGUMENT_PARSER_H
#define QUEN_3_1_RECOGNIZERS_ARGUMENT_PARSER_H

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

#include "quen_3_1/quen.h"
#include "recognizers/argument_list.h"
#include "results/option_data.h"

namespace quen_3_1 {

class Garbage;
class IResultCollector;
class OptionDescription;
class RegisteredOptionStorage;

// A recognizer looks at the front of the argument list, says whether it takes
// it (recognize), then consumes it (parse). One lives for one parse call.
class IArgumentParser {
public:
    IArgumentParser(EventHandler* handler, Garbage* garbage, std::int32_t flags);
    IArgumentParser(IArgumentParser const&) = delete;
    IArgumentParser& operator=(IArgumentParser const&) = delete;

    // 0 when this recognizer takes args[0]; never changes `args`.
    virtual int recognize(ArgumentList& args, RegisteredOptionStorage& storage, std::string& message) = 0;
    // Consumes what recognize took: 0 stored, 1 a handler vetoed a value,
    // 2 any other error, kNumbersExhaustedCode when no sequence number is
    // left; on failure `message` is set and `args` unchanged.
    virtual int parse(ArgumentList& args, IResultCollector* collector, RegisteredOptionStorage& storage,
                      std::string& message) = 0;
    // " in argument: '<token>'", appended to error messages.
    virtual std::string formatTokenMessage(std::string& token);
    // The claimant with the greater priority parses.
    virtual int getPriority() = 0;
    // After the four operations, so their order stays as it always was.
    virtual ~IArgumentParser() = default;

    // Process-wide sequence counter, the number handed out next: 1 at load,
    // never reset, never beyond kNoNumber. Atomic, so that parsers on
    // different threads never hand out one number twice.
    static std::atomic<std::int32_t> m_idx;
    // The next sequence number, or kNoNumber once kLastNumber has been handed
    // out: the counter never wraps.
    static std::int32_t takeNumber();
    // True once no number is left in this process.
    static bool numbersExhausted() { return m_idx.load(std::memory_order_relaxed) >= kNoNumber; }

    static constexpr std::int32_t kNoNumber = 0x7fffffff;
    static constexpr std::int32_t kLastNumber = kNoNumber - 1;
    // What an operation that needs a number answers when none is left.
    static constexpr int kNumbersExhaustedCode = 5;
    static char const kNumbersExhaustedMessage[];

protected:
    // Splits, validates, announces and stores one value text of `option`:
    // 0 stored, 1 vetoed by a handler, 2 validation failed, kNumbersExhaustedCode.
    int parseValueAndAddOption(std::string& value, std::string& message, OptionDescription const& option,
                               ArgumentList& args, IResultCollector* collector);

    EventHandler* m_handler;
    std::string m_name;
    Garbage* m_garbage;
    std::int32_t m_flags;

private:
    OptionData m_data;
    std::vector<std::string> m_pieces;

    // Sets the message and answers kNumbersExhaustedCode.
    int refuseForWantOfNumbers(std::string& message);
    int addValue(std::string& piece, std::string const& whole, std::string& message, OptionDescription const& option,
                 ArgumentList const& args, OptionData& data);
};

}  // namespace quen_3_1

#endif
