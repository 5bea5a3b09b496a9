#pragma once
// The numeric locale of the process is "C" for the whole run, so that every
// number is read and written with the point, in the C library and in Qt alike.
// The setting found at start is put back at the end. The user's desktop settings
// are never touched: only this process changes.
#include <QLocale>

#include <string>

namespace morve {

class ProcessLocaleState {
public:
    // Keeps the current setting and forces the point.
    void force();
    // Puts back what force() found; a second call does nothing.
    void restore();
    bool forced() const { return forced_; }
    const std::string& saved() const { return savedNumeric_; }

private:
    bool forced_ = false;
    std::string savedNumeric_;
    QLocale savedQt_;
};

}  // namespace morve
