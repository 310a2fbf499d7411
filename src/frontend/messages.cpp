#include "frontend/messages.h"

namespace quen_3_1 {
namespace frontend_messages {

char const* traceSwitch() { return "quenoption=quenlogenable=1"; }

std::string unknownOption(std::string const& argument) { return "Unknown option: " + argument; }

char const* unidentifiedProblem() { return "Unidentified problem detected."; }

char const* helpFailed() { return "Unknown error handled."; }

}  // namespace frontend_messages
}  // namespace quen_3_1
