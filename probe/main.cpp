#include "probe/command_line.h"

int main(int argc, char** argv)
{
    return quill::probe::runProbe({argv + 1, argv + argc});
}
