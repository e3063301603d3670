// The kova tool's commands, for its main() and for the tests that run them.
#ifndef KOVA_TOOLS_TOOL_H_
#define KOVA_TOOLS_TOOL_H_

// Runs one command line of the tool (argv[0] is the program's name) and
// returns its exit code; what it prints goes to standard output and error.
int KovaMain(int argc, char** argv);

#endif  // KOVA_TOOLS_TOOL_H_
