// Built with the core's settings by the test CoreRejectsQtInclude, which expects this
// build to fail: the core has no Qt on its include path.
#include <QString>

QString Probe() { return {}; }
