#pragma once

#include <QCoreApplication>

/// Nothing of Qt works without an application; the first test that needs one makes it, for all.
inline void EnsureApplication() {
    static int count = 1;
    static char name[] = "tests";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
}
