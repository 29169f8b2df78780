#include "app/windows/application.h"

namespace varrocade {

Application& application() {
    static Application instance;
    return instance;
}

Workspace& theWorkspace() {
    return application().workspace;
}

} // namespace varrocade
