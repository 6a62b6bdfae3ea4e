#pragma once

// What main() opens and calls: libkelvo_program.so, which has what needs no window. The status that
// the program ends with.
extern "C" __attribute__((visibility("default"))) int kelvoProgram(int argc, char **argv);
