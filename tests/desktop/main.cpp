#include "desktop/house_style.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setStyle(new HouseStyle); // the application owns it
    return RUN_ALL_TESTS();
}
