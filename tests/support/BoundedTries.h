#pragma once

#include <QElapsedTimer>
#include <QTest>

// QTRY_... of Qt counts its naps and not the looks between them, and waits twice as long again after its
// limit. Looks through the X server's tools take up to seconds on a busy machine, so a test would outlive its
// display before it said what it missed. From here on the limit is one of the clock. To be included before
// the tries.
#undef QTRY_LOOP_IMPL
#define QTRY_LOOP_IMPL(expr, timeoutValue, step)                                                             \
    QElapsedTimer qt_test_clock;                                                                             \
    qt_test_clock.start();                                                                                   \
    while (qt_test_clock.elapsed() < (timeoutValue) && !(expr)) {                                            \
        QTest::qWait(step);                                                                                  \
    }

#undef QTRY_TIMEOUT_DEBUG_IMPL
#define QTRY_TIMEOUT_DEBUG_IMPL(expr, timeoutValue, step)
