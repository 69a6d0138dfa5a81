// A library that a program loads, with something in it whose place can be asked for.
extern "C" __attribute__((visibility("default"))) const int marker = 1;
