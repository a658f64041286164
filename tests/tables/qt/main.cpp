// The table editor's window tests run in one QApplication, off screen.

#include "graphs/qt/ApplicationQt.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    verdane::qt::ApplicationQt application(argc, argv);
    return RUN_ALL_TESTS();
}
