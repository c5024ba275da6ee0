#include "base/version.h"

namespace version {

std::string_view Number() {
    return QUILLBROOK_VERSION;
}

} // namespace version
