#pragma once
// What the gui tests of the whole program share: a program without the splash
// and without the wait at the end, and a few turns of the event loop.
#include <QApplication>

#include "gui/morve_app.h"

inline morve::AppOptions quickOptions() {
    morve::AppOptions o;
    o.splash = false;
    o.exitMs = 0;
    o.quitAtExit = false;
    return o;
}

inline void settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
}
