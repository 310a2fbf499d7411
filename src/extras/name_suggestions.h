#ifndef QUEN_3_1_EXTRAS_NAME_SUGGESTIONS_H
#define QUEN_3_1_EXTRAS_NAME_SUGGESTIONS_H

#include <cstddef>
#include <string>
#include <vector>

namespace quen_3_1 {

class RegisteredOptionStorage;

// Edits that turn `a` into `b`: insertions, deletions, substitutions and
// swaps of two neighbours, one each.
std::size_t editDistance(std::string const& a, std::string const& b);

// Edits that turn `typed` into some prefix of `full`: an abbreviation costs
// nothing, a mistyped one only its mistakes.
std::size_t abbreviationDistance(std::string const& typed, std::string const& full);

// Names and typed texts are compared on this many leading bytes only, so that
// the work per name stays bounded whatever their lengths; real names are far
// shorter.
std::size_t const kComparedLength = 64;

// How far `typed` is from `candidate` (each cut to kComparedLength bytes): the smaller of the distance between
// the whole names and, when both have as many '-'-separated parts, the sum of
// the parts' abbreviation distances.
std::size_t nameDistance(std::string const& typed, std::string const& candidate);

// The name a user meant by an argument: what follows one or two leading
// hyphens, up to the first '='.
std::string typedOptionName(std::string const& argument);

// At most `max` visible names within reach of `typed`, nearest first, ties in
// the recognizer's candidate order. A name is within reach when its distance
// is at most a third of the typed name's compared length, rounded down: a
// short typed name would otherwise be one edit from the first letter of every name.
std::vector<std::string> closestNames(RegisteredOptionStorage const& storage, std::string const& typed,
                                      std::size_t max);

}  // namespace quen_3_1

#endif
