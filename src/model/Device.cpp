#include "Device.h"

namespace qor {

namespace {
bool s_tablet = false;
}

bool Device::isTablet()
{
    return s_tablet;
}

void Device::setTablet(bool tablet)
{
    s_tablet = tablet;
}

} // namespace qor
