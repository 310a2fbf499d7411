#ifndef QUEN_3_1_VALUES_CLASSIC_EXTRACTION_H
#define QUEN_3_1_VALUES_CLASSIC_EXTRACTION_H

namespace quen_3_1 {

// What `std::stringstream(text) >> value` gives, without building the stream,
// for a stream in its default state (decimal unless `hex`, white space
// skipped) under the classic "C" locale. Conversions reach these only while
// the global locale is the classic one and the standard library is one whose
// extraction rules they follow; otherwise the stream itself is used.
// Each returns true, with `value` set, when the extraction succeeds, and
// false when it fails (`value` is then unspecified).
enum class ExtractionSupport { Classic, StreamOnly };

// Classic when the fast extraction applies to the current global locale.
ExtractionSupport classicExtraction();

bool extractClassic(char const* text, bool& value);
bool extractClassic(char const* text, int& value);
bool extractClassic(char const* text, unsigned int& value);
bool extractClassic(char const* text, long long& value);
bool extractClassic(char const* text, unsigned long long& value, bool hex);
bool extractClassic(char const* text, double& value);

}  // namespace quen_3_1

#endif
