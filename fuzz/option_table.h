// A realistic option table shared by the fuzz targets that parse.
#ifndef QUEN_FUZZ_OPTION_TABLE_H
#define QUEN_FUZZ_OPTION_TABLE_H

#include <string>
#include <vector>

#include "quen_3_1/quen.h"

namespace quen_fuzz {

// Declares the table on `parser`.
void declareOptions(quen_3_1::IParser* parser);
// Every name the table declares, synonyms and short names included.
std::vector<std::string> const& declaredNames();

}  // namespace quen_fuzz

#endif
