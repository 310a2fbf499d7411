#include "recognizers/argument_parser.h"

#include <utility>

#include "frontend/trace.h"
#include "options/option_description.h"
#include "recognizers/messages.h"
#include "results/result_collector.h"
#include "values/separator_split.h"
#include "values/variant_transfer.h"

namespace quen_3_1 {

std::atomic<std::int32_t> IArgumentParser::m_idx{1};

std::int32_t IArgumentParser::takeNumber() {
    std::int32_t next = m_idx.load(std::memory_order_relaxed);
    while (next < kNoNumber) {
        if (m_idx.compare_exchange_weak(next, next + 1, std::memory_order_relaxed)) {
            return next;
        }
    }
    return kNoNumber;
}

IArgumentParser::IArgumentParser(EventHandler* handler, Garbage* garbage, std::int32_t flags)
    : m_handler(handler), m_name("UndefinedParser"), m_garbage(garbage), m_flags(flags) {}

std::string IArgumentParser::formatTokenMessage(std::string& token) { return recognizer_messages::inArgument(token); }

Status IArgumentParser::parseValueAndAddOption(std::string& value, std::string& message,
                                               OptionDescription const& option, ArgumentList& args,
                                               IResultCollector* collector) {
    // The record and the pieces are reused from call to call; the collector takes the
    // converted values and copies the texts.
    OptionData& data = m_data;
    data.m_positions.clear();
    data.m_values.clear();
    std::int32_t const position = takeNumber();
    if (position == kNoNumber) {
        return refuseForWantOfNumbers(message);
    }
    data.m_positions.push_back(position);
    if (!value.empty()) {
        internal::trace(m_name, ": adding values to result container:");
        char const tokenizer = option.tokenizer();
        if (tokenizer != 0) {
            internal::trace(m_name, ": using tokenizer on char: '", tokenizer, "'");
            Status const status = addPieces(value, tokenizer, message, option, args, data);
            if (status != Status::Ok) {
                return status;
            }
        } else {
            internal::trace(m_name, ": not using tokenizer");
            std::string whole = value;
            Status const status = addValue(whole, value, message, option, args, data);
            if (status != Status::Ok) {
                return status;
            }
        }
    }
    if (collector != nullptr) {
        collector->store(option, data);
    }
    internal::trace(m_name, ": stored option to result container.");
    return Status::Ok;
}

// Most values hold no separator: they are their own single piece, taken
// without splitting them into the list of pieces.
Status IArgumentParser::addPieces(std::string const& value, char tokenizer, std::string& message,
                                  OptionDescription const& option, ArgumentList const& args, OptionData& data) {
    if (value.find(tokenizer) == std::string::npos) {
        std::string piece = value;
        return addPiece(piece, value, message, option, args, data);
    }
    std::vector<std::string>& pieces = m_pieces;
    pieces.clear();
    splitAtSeparator(value, tokenizer, pieces);
    for (std::string& piece : pieces) {
        Status const status = addPiece(piece, value, message, option, args, data);
        if (status != Status::Ok) {
            return status;
        }
    }
    return Status::Ok;
}

Status IArgumentParser::addPiece(std::string& piece, std::string const& whole, std::string& message,
                                 OptionDescription const& option, ArgumentList const& args, OptionData& data) {
    internal::trace(m_name, ": value is: '", piece, "'");
    Status const status = addValue(piece, whole, message, option, args, data);
    if (status == Status::Ok) {
        internal::trace(m_name, ": sent event on value parsed, option: '", option.primaryName(), "', value: '",
                        data.m_values.back().first.first, "'");
    }
    return status;
}

Status IArgumentParser::refuseForWantOfNumbers(std::string& message) {
    message = recognizer_messages::numbersExhausted();
    internal::trace(m_name, ": ", message);
    return Status::NumbersExhausted;
}

// Validates one piece, numbers it, lets the handlers veto it and keeps it;
// the kept entry takes the piece's text (moved, not swapped: the library's
// swap is an out-of-line call), and the piece is not read again.
Status IArgumentParser::addValue(std::string& piece, std::string const& whole, std::string& message,
                                 OptionDescription const& option, ArgumentList const& args, OptionData& data) {
    // The event's variant takes the converted value, so no other variant is made for it.
    Value event{nullptr, 0, 0, tarvo2::variant_t()};
    std::string reason;
    if (!option.validate(piece, event.m_value, reason)) {
        message = recognizer_messages::validationProblem(std::string(args[0]), reason);
        internal::trace(m_name, ": ", message);
        return Status::Failed;
    }
    std::int32_t const number = takeNumber();
    if (number == kNoNumber) {
        return refuseForWantOfNumbers(message);
    }
    event.m_text = piece.c_str();
    event.m_index = number;
    if (!m_handler->onValueParse(option.primaryName().data(), event)) {
        message = recognizer_messages::valueVetoed(whole, option.primaryName(), std::string(args[0]));
        internal::trace(m_name, message, " One of the handler signaled the value is not valid.");
        return Status::Vetoed;
    }
    data.m_values.emplace_back();
    ValueEntry& entry = data.m_values.back();
    entry.first.first = std::move(piece);
    transferVariant(entry.first.second, event.m_value);
    entry.second = number;
    return Status::Ok;
}

}  // namespace quen_3_1
