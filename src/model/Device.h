#pragma once
// Phone or tablet layout. The app chooses it from the window size (or
// --form-factor); page preparation and a few screens differ by it.
namespace qor {

class Device {
public:
    static bool isTablet();
    static void setTablet(bool tablet);
};

} // namespace qor
