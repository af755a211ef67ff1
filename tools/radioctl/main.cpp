/// radioctl: every request of the library from the command line.
#include "radioctl/program.h"

int main(int argc, char** argv)
{
    radioctl::Program program;
    return program.run({argv + 1, argv + argc});
}
