// main.cpp: runs the tests of the Qt binding within one application object.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

namespace {

// What the offscreen platform cannot do and the tests do not need.
void SkipKnown(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(SkipKnown);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
