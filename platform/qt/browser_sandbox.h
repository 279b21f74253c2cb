#pragma once

namespace zev {

/// True when the browser engine can lock its page processes in. Where it cannot (for the
/// superuser, and on systems that give ordinary users no namespaces of their own) it ends the
/// whole program, unless it is told to do without.
bool CanSandboxBrowser();

}  // namespace zev
