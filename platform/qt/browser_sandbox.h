#pragma once

namespace zev {

/// False when the browser engine would end the whole program instead of starting: it insists on
/// locking its page processes in, which it cannot do for the superuser and on systems that give
/// ordinary users no namespaces of their own. QTWEBENGINE_DISABLE_SANDBOX=1 makes it do without.
bool canStartBrowser();

}  // namespace zev
