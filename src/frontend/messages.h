#ifndef QUEN_3_1_FRONTEND_MESSAGES_H
#define QUEN_3_1_FRONTEND_MESSAGES_H

#include <string>

// The fixed texts of the parser front end, each written once here.
namespace quen_3_1 {
namespace frontend_messages {

// The first argument that turns tracing on for its parse.
char const* traceSwitch();
std::string unknownOption(std::string const& argument);
// A parse ended by an exception that is not a standard one.
char const* unidentifiedProblem();
// Help text rendering ended by a standard exception.
char const* helpFailed();

}  // namespace frontend_messages
}  // namespace quen_3_1

#endif
