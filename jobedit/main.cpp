#include "commandline.h"

int main(int argc, char* argv[])
{
    return JOBEDIT::RunCommandLine(argc, argv);
}
