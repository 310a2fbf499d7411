// What a name in an App's name table stands for: an option or positional (its
// index among the App's options), an options-file option (its index among
// those), or the no- form of a flag (the flag's index).
#ifndef QUEN_3_1_SRC_APP_NAME_ID_H
#define QUEN_3_1_SRC_APP_NAME_ID_H

#include <cstdint>

namespace quen_3_1::app_detail::name_id {

constexpr std::uint32_t kFile = 1U << 30;
constexpr std::uint32_t kNegated = 1U << 31;
constexpr std::uint32_t kIndex = kFile - 1;

constexpr bool isOption(std::uint32_t id) { return (id & (kFile | kNegated)) == 0; }
constexpr bool isFile(std::uint32_t id) { return (id & (kFile | kNegated)) == kFile; }

}  // namespace quen_3_1::app_detail::name_id

#endif  // QUEN_3_1_SRC_APP_NAME_ID_H
