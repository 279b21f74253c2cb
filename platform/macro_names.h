// SPDX-License-Identifier: MIT
#pragma once

// One system's own headers define names of our operations and classes as macros. A file that has
// read them would see other names here than a file that has not. A port includes those headers
// before ours, in `platform/` only, and calls their functions by the names they stand for.

#undef CopyFile
#undef DeleteFile
#undef FindExecutable
#undef MessageBox
#undef ShellExecute
