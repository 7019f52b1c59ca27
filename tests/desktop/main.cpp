#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/Application.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    lithmark::PrepareApplication(application);
    return RUN_ALL_TESTS();
}
