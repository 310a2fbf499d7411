#ifndef QUEN_3_1_APP_INSTANCE_TYPES_H
#define QUEN_3_1_APP_INSTANCE_TYPES_H

// The element types whose instances the library holds (app.h declares them
// extern): applies MACRO to each, so every list of instances names the same types.
#define QUEN_APP_FOR_EACH_ELEMENT(MACRO) \
    MACRO(bool)                          \
    MACRO(int)                           \
    MACRO(unsigned)                      \
    MACRO(long long)                     \
    MACRO(unsigned long long)            \
    MACRO(double)                        \
    MACRO(std::string)

#endif
