#ifndef QUEN_3_1_EXTRAS_COMPLETION_TEMPLATES_H
#define QUEN_3_1_EXTRAS_COMPLETION_TEMPLATES_H

namespace quen_3_1 {

// The shell text of each completion script, with its placeholders: the files
// of extras/completion, embedded into the library when it is built.
extern char const kBashCompletionTemplate[];
extern char const kZshCompletionTemplate[];
extern char const kFishCompletionTemplate[];

}  // namespace quen_3_1

#endif
