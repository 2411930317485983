#pragma once

namespace JOBEDIT
{

/// The whole program: edits a job in a window or runs a command, as the arguments say. Returns the exit status (see
/// ExitStatus).
int RunCommandLine(int argc, char* argv[]);

} // namespace JOBEDIT
