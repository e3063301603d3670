// kova: the command-line tool for people who debug device integrations
// (tools/kova.cpp says what it does).
#include "tool.h"

int main(int argc, char** argv) { return KovaMain(argc, argv); }
