#pragma once

#include "platform/file_system.h"
#include "platform/shell.h"

namespace zev {

/// File associations of a freedesktop.org desktop.
class PosixShell : public Shell {
  public:
    /// `files` reads the desktop entry files; not owned, must outlive this object.
    explicit PosixShell(const FileSystem& files);

    /// Web pages (.htm, .html) only, which is all the program asks for. The result is the command
    /// line of the program's desktop entry, arguments included: a browser may be wrapped in another
    /// program ("env", "flatpak run").
    std::string FindExecutable(const std::string& file) override;

    /// `program`: path or name of a program, or a command line from `FindExecutable`, in which
    /// `argument` takes the place of the code for files or addresses.
    bool ShellExecute(const std::string& program, const std::string& argument) override;

  private:
    const FileSystem& m_files;
};

}  // namespace zev
