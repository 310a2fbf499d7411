// A recognizer with what it found kept between recognize and parse, as the
// pipeline keeps it, so that tests can look at each step on its own.
#ifndef QUEN_TESTS_SUPPORT_RECOGNIZER_PROBE_H
#define QUEN_TESTS_SUPPORT_RECOGNIZER_PROBE_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "options/registered_option_storage.h"
#include "recognizers/argument_list.h"
#include "recognizers/messages.h"
#include "recognizers/name_matching.h"
#include "recognizers/recognition.h"
#include "results/result_collector.h"

namespace quen_test {

template <class Recognizer>
class RecognizerProbe {
public:
    RecognizerProbe(quen_3_1::EventHandler* handler, quen_3_1::Garbage* garbage, std::int32_t flags)
        : m_recognizer(handler, garbage, flags) {}

    // 0 when taken, else 1; an ambiguity is spelt into `message` as the trace spells it.
    int recognize(quen_3_1::ArgumentList& args, quen_3_1::RegisteredOptionStorage& storage, std::string& message) {
        bool const taken = m_recognizer.recognize(args, storage, m_found);
        if (!m_found.tied.empty()) {
            message = quen_3_1::recognizer_messages::ambiguousCandidates(
                quen_3_1::listCandidates(storage.names(), m_found.tied));
        }
        return taken ? 0 : 1;
    }

    int parse(quen_3_1::ArgumentList& args, quen_3_1::IResultCollector* collector,
              quen_3_1::RegisteredOptionStorage& storage, std::string& message) {
        return quen_3_1::codeOf(m_recognizer.parse(args, m_found, collector, storage, message));
    }

    int getPriority() { return m_recognizer.getPriority(); }
    // The option the last recognize found; npos when none or ambiguous.
    std::size_t optionIndex() const { return m_found.option; }
    quen_3_1::Recognition const& found() const { return m_found; }

private:
    Recognizer m_recognizer;
    quen_3_1::Recognition m_found;
};

}  // namespace quen_test

#endif
