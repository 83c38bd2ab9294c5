#include <gmock/gmock.h>

#include <QApplication>

#include "platform/Guarded.h"

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // while building, where there may be no screen
    const Guarded<QApplication> application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
