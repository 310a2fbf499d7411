#ifndef QUEN_3_1_RECOGNIZERS_ARGUMENT_PARSER_H
#define QUEN_3_1_RECOGNIZERS_ARGUMENT_PARSER_H

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

#include "quen_3_1/quen.h"
#include "recognizers/argument_list.h"
#include "recognizers/recognition.h"
#include "recognizers/status.h"
#include "results/option_data.h"

namespace quen_3_1 {

class Garbage;
class IResultCollector;
class OptionDescription;
class RegisteredOptionStorage;

// A recognizer looks at the front of the argument list, says whether it takes
// it and what it found (recognize), then consumes it from what it found
// (parse). One lives for one parse call.
class IArgumentParser {
public:
    IArgumentParser(EventHandler* handler, Garbage* garbage, std::int32_t flags);
    IArgumentParser(IArgumentParser const&) = delete;
    IArgumentParser& operator=(IArgumentParser const&) = delete;

    // True when this recognizer takes args[0], with `found` filled in.
    virtual bool recognize(ArgumentList const& args, RegisteredOptionStorage const& storage, Recognition& found) = 0;
    // Consumes what recognize found: Ok when stored; otherwise `message` is
    // set and `args` unchanged.
    virtual Status parse(ArgumentList& args, Recognition const& found, IResultCollector* collector,
                         RegisteredOptionStorage const& storage, std::string& message) = 0;
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

protected:
    // Splits, validates, announces and stores one value text of `option`.
    Status parseValueAndAddOption(std::string& value, std::string& message, OptionDescription const& option,
                                  ArgumentList& args, IResultCollector* collector);

    EventHandler* m_handler;
    char const* m_name;  // for trace lines; a literal, so a parse allocates nothing for it
    Garbage* m_garbage;
    std::int32_t m_flags;

private:
    OptionData m_data;
    std::vector<std::string> m_pieces;

    // Sets the message and answers NumbersExhausted.
    Status refuseForWantOfNumbers(std::string& message);
    // Adds each piece of `value` cut at `tokenizer`, in order, up to the first refused one.
    Status addPieces(std::string const& value, char tokenizer, std::string& message, OptionDescription const& option,
                     ArgumentList const& args, OptionData& data);
    // Adds one piece, with its trace lines.
    Status addPiece(std::string& piece, std::string const& whole, std::string& message, OptionDescription const& option,
                    ArgumentList const& args, OptionData& data);
    Status addValue(std::string& piece, std::string const& whole, std::string& message, OptionDescription const& option,
                    ArgumentList const& args, OptionData& data);
};

}  // namespace quen_3_1

#endif
