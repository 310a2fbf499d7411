// A shared library with one function and nothing else, built by the same
// toolchain as quen_3_1: what loading any one more shared object costs a
// process, the floor under the library's own cost.
extern "C" __attribute__((visibility("default"))) int quenProcessEmpty(int value);

int quenProcessEmpty(int value) { return value + 1; }
