#pragma once

// One test program for each room instead of one for each test class: linking and preparing more
// than a hundred programs took longer than compiling them. A test source ends with one of the
// macros below instead of Qt's QTEST_MAIN. The program runs the class named by its first argument,
// and passes the other arguments to Qt Test:
//
//     test-controller ConnectTest [SLOT…]
//
// A class per process: no state of one test class reaches another.

#include "base/Text.h"

#include <QCoreApplication>
#include <QTest>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#elif defined(QT_GUI_LIB)
#include <QGuiApplication>
#endif

namespace veldmark {

// The text in a failure report of Qt Test.
inline char *toString(const Text &text)
{
    return QTest::toString(text.english());
}

} // namespace veldmark

namespace veldmark::test {

struct Registration {
    using Run = int (*)(int argc, char **argv);
    Registration(const char *className, Run run); // both live as long as the program
};

// Without an application object.
template <class Test> int runBare(int argc, char **argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template <class Test, class Application> int run(int argc, char **argv)
{
    QTest::Internal::callInitMain<Test>();
    Application application(argc, argv);
    return runBare<Test>(argc, argv);
}

#ifdef QT_WIDGETS_LIB
using WindowedApplication = QApplication;
#elif defined(QT_GUI_LIB)
using WindowedApplication = QGuiApplication;
#endif

} // namespace veldmark::test

#define VELDMARK_TEST(Class)                                                                       \
    static const veldmark::test::Registration registered##Class(                                   \
        #Class, veldmark::test::run<Class, QCoreApplication>);
#define VELDMARK_WINDOWED_TEST(Class)                                                              \
    static const veldmark::test::Registration registered##Class(                                   \
        #Class, veldmark::test::run<Class, veldmark::test::WindowedApplication>);
#define VELDMARK_BARE_TEST(Class)                                                                  \
    static const veldmark::test::Registration registered##Class(#Class,                            \
                                                                veldmark::test::runBare<Class>);
