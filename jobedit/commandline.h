#pragma once

namespace JOBEDIT
{

/// The whole program: edits a job in a window, renders its dialogs or checks files, as the arguments say. Returns the
/// exit status: 0, 1 when something failed or a file has an error, 2 when the arguments are wrong.
int RunCommandLine(int argc, char* argv[]);

} // namespace JOBEDIT
