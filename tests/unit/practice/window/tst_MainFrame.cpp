#include "EditorFixture.h"

#include <QMenuBar>

/// The main window: what stands where in it, and what becomes of that when it is made larger or smaller.
class tst_MainFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contentsStandBetweenMenuBarAndStrip();
    void fitsTheScreen_data();
    void fitsTheScreen();
    void theMapTakesTheRoom();
    void controlsThatMovedAreToldAgain();
};

namespace {

/// A strip as high as that of the lessons.
QWidget *newStrip()
{
    auto *strip = new QWidget;
    strip->setFixedHeight(96);
    return strip;
}

} // namespace

void tst_MainFrame::contentsStandBetweenMenuBarAndStrip()
{
    Editor editor;
    QWidget *const strip = newStrip();
    editor->dock(strip);
    editor->open(str("MainWindow"));
    const QWidget *const contents = editor->window(str("MainWindow"));
    QTRY_COMPARE(strip->geometry().top(), contents->geometry().bottom() + 1);
    QVERIFY(contents->geometry().top() >= editor.frame()->findChild<QMenuBar *>()->geometry().bottom());
    QCOMPARE(strip->height(), 96);
    QCOMPARE(strip->width(), editor.frame()->width());
    QCOMPARE(editor->origin(str("MainWindow")).value(), contents->mapToGlobal(QPoint()));
    QCOMPARE(editor->applicationSize(), contents->size());
}

void tst_MainFrame::fitsTheScreen_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QSize>("contents");
    QTest::newRow("large") << QRect(0, 0, 1920, 1080) << QSize(1100, 720);
    QTest::newRow("usual") << QRect(0, 0, 1280, 960) << QSize(1100, 720);
    QTest::newRow("second of two") << QRect(1280, 0, 1920, 1080) << QSize(1100, 720);
    QTest::newRow("small") << QRect(0, 0, 1024, 768) << QSize();
    QTest::newRow("small, with a panel above") << QRect(0, 27, 1024, 741) << QSize();
}

void tst_MainFrame::fitsTheScreen()
{
    QFETCH(QRect, screen);
    QFETCH(QSize, contents);
    Editor editor;
    editor->dock(newStrip());
    auto *frame = qobject_cast<MainFrame *>(editor.frame());
    const QPoint place = screen.topLeft() + QPoint(90, 190);
    frame->fit(place, QSize(1100, 720), screen);
    frame->show();
    const EditorWindow *main = editor->window(str("MainWindow"));
    QTRY_VERIFY(main->height() + 96 < frame->height());
    const QRect whole(frame->mapToGlobal(QPoint()), frame->size());
    // Room for the frame that a window manager adds.
    QVERIFY2(screen.adjusted(4, 28, -4, -4).contains(whole),
             qPrintable(str("%1 x %2").arg(whole.width()).arg(whole.height())));
    if (contents.isValid()) {
        QCOMPARE(main->size(), contents);
        QCOMPARE(main->mapToGlobal(QPoint()).x(), place.x());
        return;
    }
    QVERIFY(main->width() > 990);
    QVERIFY(main->height() > 560);
    // Everything that keeps its place is in sight.
    QVERIFY(main->rect().contains(main->findChild<QWidget *>(str("viewGrid"))->geometry()));
    QVERIFY(main->rect().contains(main->findChild<QWidget *>(str("status"))->geometry()));
}

void tst_MainFrame::theMapTakesTheRoom()
{
    Editor editor;
    editor.openProject();
    const EditorWindow *main = editor->window(str("MainWindow"));
    editor.frame()->resize(editor.frame()->size() + QSize(1300, 900) - main->size());
    QTRY_COMPARE(main->size(), QSize(1300, 900));
    const QSize growth = main->size() - QSize(1100, 720);
    const EditorWindow *map = editor->window(str("MainWindowClient_mapEditorView"));
    QCOMPARE(map->geometry(), QRect(QPoint(260, 116), QSize(832, 576) + growth));
    QCOMPARE(editor.find<QWidget>("MainWindowClient_mapEditorView", "map")->size(), map->size());
    QCOMPARE(editor->window(str("MapEditTreeBox"))->geometry(), QRect(4, 376, 248, 316 + growth.height()));
    QCOMPARE(editor.find<QWidget>("MapEditTreeBox", "maps")->size(), QSize(240, 284 + growth.height()));
    QCOMPARE(editor.find<QWidget>("MainWindow", "status")->geometry(),
             QRect(8, 696 + growth.height(), 1084 + growth.width(), 20));
    QCOMPARE(editor.find<QWidget>("MainWindow", "tiles")->geometry(), QRect(8, 142, 240, 224));
}

void tst_MainFrame::controlsThatMovedAreToldAgain()
{
    const Editor editor;
    editor->open(str("MainWindow"));
    QSignalSpy told(editor.operator->(), &EditorWindows::controlMoved);
    editor.frame()->resize(editor.frame()->size() + QSize(50, 40));
    const auto lastOf = [&told](const char *name) {
        QPoint place;
        for (const QList<QVariant> &arguments : told) {
            place = arguments[0].toString() == str(name) ? arguments[1].toPoint() : place;
        }
        return place;
    };
    const auto *status = editor.find<QWidget>("MainWindow", "status");
    QTRY_COMPARE(lastOf("MainWindow_status"), status->mapToGlobal(QPoint()));
}

QTEST_MAIN(tst_MainFrame)
#include "tst_MainFrame.moc"
