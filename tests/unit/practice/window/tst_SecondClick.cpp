#include "EditorFixture.h"
#include "lesson/description/ControlSpots.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>

/// Who double-clicks where one click is enough does no harm by it.
class tst_SecondClick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void theSecondClickOnOkDoesNotPaint();
    void aClickElsewhereCounts();
    void aLaterClickCounts();
    void theSecondClickOnAnEntryIsDropped();
    void aDoubleClickOnAButtonIsOneClick();
    void aDoubleClickOnACheckBoxIsOneClick();
    void aButtonForMoreClicksTakesThemAll();
    void theSecondClickDoesNothingToTheWindowThatTheFirstHasOpened();

private:
    int m_interval = 0;
};

namespace {

/// A point divided by a number is rounded, and cells are not.
int tileAt(const Editor &editor, const QPoint &place)
{
    return editor.shownMap()->tile(0, {place.x() / kCellPixels, place.y() / kCellPixels});
}

/// Presses OK of the map's properties, and gives the place on the map that lies below.
QPoint pressOk(Editor *editor)
{
    editor->clickRow("MainWindow", "tiles", 4);
    (*editor)->open(str("MapProperties"));
    const auto *ok = editor->find<QWidget>("MapProperties", "ok");
    const QPoint below = editor->map()->mapFromGlobal(ok->mapToGlobal(ok->rect().center()));
    editor->click("MapProperties", "ok");
    return below;
}

/// As the window system tells it.
void doubleClick(QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, middle, widget->mapTo(widget->window(), middle), widget->mapToGlobal(middle),
                          Qt::LeftButton, isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

} // namespace

void tst_SecondClick::initTestCase()
{
    m_interval = QApplication::doubleClickInterval();
}

void tst_SecondClick::init()
{
    // Long enough for any machine.
    QApplication::setDoubleClickInterval(60000);
}

void tst_SecondClick::theSecondClickOnOkDoesNotPaint()
{
    Editor editor;
    editor.openProject();
    const QPoint below = pressOk(&editor);
    QVERIFY(editor.map()->rect().contains(below));
    const int before = tileAt(editor, below);
    QVERIFY(before != 4);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, below);
    QCOMPARE(tileAt(editor, below), before);
}

void tst_SecondClick::aClickElsewhereCounts()
{
    Editor editor;
    editor.openProject();
    const QPoint elsewhere = pressOk(&editor) - QPoint(64, 64);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, elsewhere);
    QCOMPARE(tileAt(editor, elsewhere), 4);
}

void tst_SecondClick::aLaterClickCounts()
{
    Editor editor;
    editor.openProject();
    const QPoint below = pressOk(&editor);
    QApplication::setDoubleClickInterval(0);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, below);
    QCOMPARE(tileAt(editor, below), 4);
    QApplication::setDoubleClickInterval(m_interval);
}

void tst_SecondClick::theSecondClickOnAnEntryIsDropped()
{
    Editor editor;
    editor.openProject();
    editor.click("MainWindow", "modeEvent");
    QTest::mouseClick(editor.map(), Qt::RightButton, {}, QPoint(200, 200));
    const auto *inn = editor.find<QWidget>("EventPopup", "quickInn");
    const QPoint below = editor.map()->mapFromGlobal(inn->mapToGlobal(inn->rect().center()));
    const QPoint marked = editor.map()->markedCell();
    editor.click("EventPopup", "quickInn");
    editor->close(str("QuickInn"));
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, below);
    QCOMPARE(editor.map()->markedCell(), marked);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, below + QPoint(0, 2 * kCellPixels));
    QVERIFY(editor.map()->markedCell() != marked);
}

void tst_SecondClick::aDoubleClickOnAButtonIsOneClick()
{
    Editor editor;
    editor.openProject();
    editor->open(str("DatabaseMain"));
    const auto *const actors = editor.find<RowList>("DatabaseMain", "actors");
    const int before = actors->count();
    auto *const add = editor.find<QPushButton>("DatabaseMain", "actorsAdd");
    doubleClick(add);
    QCOMPARE(actors->count(), before + 1);
    QVERIFY(!add->isDown());
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(actors->count(), before + 2);
}

void tst_SecondClick::aDoubleClickOnACheckBoxIsOneClick()
{
    Editor editor;
    editor.openProject();
    editor.click("MainWindow", "modeEvent");
    QTest::mouseDClick(editor.map(), Qt::LeftButton, {}, QPoint(200, 200));
    const auto *const box = editor.find<QCheckBox>("EventEditorMain", "through");
    QVERIFY(!box->isChecked());
    doubleClick(editor.find<QCheckBox>("EventEditorMain", "through"));
    QVERIFY(box->isChecked());
}

void tst_SecondClick::aButtonForMoreClicksTakesThemAll()
{
    Editor editor;
    editor.openProject();
    editor.click("MainWindow", "modeEvent");
    QTest::mouseDClick(editor.map(), Qt::LeftButton, {}, QPoint(200, 200));
    auto *const kind = editor.find<QComboBox>("EventEditorMain", "moveType");
    kind->setCurrentIndex(3);
    Q_EMIT kind->activated(3);
    editor.click("EventEditorMain", "route");
    doubleClick(editor.find<QPushButton>("MovementRoute", "moveLeft"));
    // With the "+" below them.
    QCOMPARE(editor.find<RowList>("MovementRoute", "steps")->count(), 3);
    editor->close(str("MovementRoute"));
    editor->close(str("EventEditorMain"));
    // So do tool buttons without a state.
    auto *const zoom = editor.find<QAbstractButton>("MainWindow", "viewZoomOut");
    QSignalSpy clicked(zoom, &QAbstractButton::clicked);
    doubleClick(zoom);
    QCOMPARE(clicked.count(), 2);
}

void tst_SecondClick::theSecondClickDoesNothingToTheWindowThatTheFirstHasOpened()
{
    Editor editor;
    editor.openProject();
    editor->open(str("DatabaseMain"));
    editor.find<QPushButton>("DatabaseMain", "actorsAdd")->click();
    auto *const face = editor.find<QWidget>("DatabaseMain", "actorFace");
    QVERIFY(face != nullptr && face->isEnabled() && face->isVisible());
    const QPoint place = face->mapToGlobal(face->rect().center());
    QCursor::setPos(place);
    QTest::mouseClick(face, Qt::LeftButton);
    QCOMPARE(editor->openWindows().constLast(), str("ImageSelector"));
    QWidget *const chooser = editor->window(str("ImageSelector"))->window();
    // On its frame, whose cross asks the window to close.
    chooser->close();
    QCOMPARE(editor->openWindows().constLast(), str("ImageSelector"));
    // On what lies there in it.
    auto *const cancel = editor.find<QWidget>("ImageSelector", "cancel");
    chooser->move(chooser->pos() + place - cancel->mapToGlobal(cancel->rect().center()));
    QTest::mouseClick(cancel, Qt::LeftButton);
    QCOMPARE(editor->openWindows().constLast(), str("ImageSelector"));
    // A key is no second click.
    QTest::keyClick(chooser, Qt::Key_Escape);
    QCOMPARE(editor->openWindows().constLast(), str("DatabaseMain"));
    QApplication::setDoubleClickInterval(0);
    QTest::mouseClick(face, Qt::LeftButton);
    chooser->close();
    QCOMPARE(editor->openWindows().constLast(), str("DatabaseMain"));
    QApplication::setDoubleClickInterval(m_interval);
}

QTEST_MAIN(tst_SecondClick)
#include "tst_SecondClick.moc"
