#include "DescriptionFiles.h"
#include "window/EditorWindowSet.h"
#include "window/MapView.h"
#include "window/RowList.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabBar>
#include <QtTest>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A set of windows and everything that it told, one line each and in order.
class Editor
{
public:
    explicit Editor(const char *locale = "en_US")
        : m_set(EditorWindowSet::create(str(locale), &m_errors))
    {
        if (!m_set)
            qFatal("%s", qPrintable(m_errors.join(QLatin1Char('\n'))));
        QObject::connect(
            m_set.get(), &EditorWindows::happened, m_set.get(), [this](const EditorEvent &event) {
                told.append(QStringList{event.type, event.target, event.value}.join(QLatin1Char(',')) +
                            str(" in ") + event.windowKey);
            });
        QObject::connect(m_set.get(), &EditorWindows::pushed, m_set.get(),
                         [this](const QString &key) { told.append(str("push ") + key); });
        QObject::connect(m_set.get(), &EditorWindows::popped, m_set.get(),
                         [this](const QString &key) { told.append(str("pop ") + key); });
        QObject::connect(m_set.get(), &EditorWindows::visibilityChanged, m_set.get(),
                         [this](bool visible) { told.append(visible ? str("visible") : str("invisible")); });
        QObject::connect(m_set.get(), &EditorWindows::popupAbandoned, m_set.get(),
                         [this] { told.append(str("abandoned")); });
        QObject::connect(m_set.get(), &EditorWindows::mainWindowClosed, m_set.get(),
                         [this] { told.append(str("main window closed")); });
    }

    void openProject()
    {
        m_set->open(str("MainWindow"));
        m_set->project()->run(str("newProject.create"));
        told.clear();
    }

    EditorWindowSet *operator->() const { return m_set.get(); }

    template<typename Widget>
    Widget *find(const char *window, const char *name) const
    {
        auto *widget = m_set->window(str(window))->findChild<Widget *>(str(name));
        if (widget == nullptr)
            qFatal("no %s in %s", name, window);
        return widget;
    }

    void click(const char *window, const char *name)
    {
        QTest::mouseClick(find<QAbstractButton>(window, name), Qt::LeftButton);
    }

    void clickRow(const char *window, const char *name, int row, Qt::MouseButton button = Qt::LeftButton)
    {
        auto *list = find<RowList>(window, name);
        QTest::mouseClick(list->viewport(), button, {}, rowCentre(list, row));
    }

    void doubleClickRow(const char *window, const char *name, int row)
    {
        auto *list = find<RowList>(window, name);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, rowCentre(list, row));
    }

    [[nodiscard]] MapView *map() const
    {
        return m_set->window(str("MainWindowClient_mapEditorView"))->findChild<MapView *>();
    }

    /// What was told since the last call.
    QStringList takeTold() { return std::exchange(told, {}); }

    QStringList told;

private:
    static QPoint rowCentre(const RowList *list, int row)
    {
        return list->visualItemRect(list->item(row)).center();
    }

    QStringList m_errors;
    std::unique_ptr<EditorWindowSet> m_set;
};

QStringList opened(const char *key)
{
    return {str("push %1").arg(str(key)), str("windowState,%1,open in %1").arg(str(key))};
}

QStringList closed(const char *key)
{
    return {str("pop %1").arg(str(key)), str("windowState,%1,close in %1").arg(str(key))};
}

} // namespace

class tst_EditorWindowSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatIsWrongWithTheFiles();
    void controlsStandWhereTheFilesSay();
    void textsAreInTheLanguage_data();
    void textsAreInTheLanguage();
    void opensByKey_data();
    void opensByKey();
    void stackHasTheLastOpenedOnTop();
    void closingAWindowClosesWhatStandsAboveIt();
    void openingAnOpenWindowTellsNothing();
    void newProjectIsCopiedThenOpen();
    void copyingCannotBeClosedByHand();
    void originsFollowTheWindows();
    void controlsAreToldWithTheirWindow();
    void actionsAreTold_data();
    void actionsAreTold();
    void toolButtonsNeedAProject();
    void rowsAreToldEvenWhenSelectedAlready();
    void rowsAreToldFromTheKeyboard();
    void rightClickSelectsWithoutTellingARow();
    void tabsAreToldEvenWhenCurrentAlready();
    void mapTellsPressThenClick();
    void mapPaintsWithEachTool_data();
    void mapPaintsWithEachTool();
    void eventModeDoesNotPaint();
    void contextMenuOfTheMap();
    void popupOpensAWindow();
    void popupClosesAtAPressElsewhere();
    void popupClosesWithEscape();
    void popupIsReplacedByTheNext();
    void popupIsAbandonedToAnotherProgram();
    void propertiesAreKeptWithOkOnly();
    void pictureIsChosenInItsWindow();
    void doubleClicksOpenAndAccept();
    void returnKeyAcceptsAndEscapeCancels();
    void valuesAreTold();
    void dialogsBlockTheEditorAndNothingElse();
    void windowsHaveTitles();
    void minimisingIsTold();
    void closingTheMainWindowEndsEverything();
};

void tst_EditorWindowSet::tellsWhatIsWrongWithTheFiles()
{
    const DescriptionFiles files;
    files.write(str("Box.json"), "{}");
    QStringList errors;
    QVERIFY(!EditorWindowSet::create(str("en_US"), &errors, files.folder()));
    QVERIFY(errors.contains(files.path(str("Box.json")) + str(": key: must be a text")));
    QVERIFY(errors.contains(files.path(str("data/project.json")) +
                            str(": cannot be read (No such file or directory)")));
}

void tst_EditorWindowSet::controlsStandWhereTheFilesSay()
{
    const Editor editor;
    QStringList errors;
    const auto descriptions = DescriptionSet::read(str(":/windows"), &errors);
    QCOMPARE(errors, QStringList());
    int checked = 0;
    const auto check = [&](const QString &window, const QSize &size,
                           const QVector<ControlDescription> &controls) {
        QCOMPARE(editor->window(window)->size(), size);
        for (const ControlDescription &control : controls) {
            const auto *widget =
                editor->window(window)->findChild<QWidget *>(control.name, Qt::FindDirectChildrenOnly);
            QVERIFY2(widget != nullptr, qPrintable(window + QLatin1Char(' ') + control.name));
            QCOMPARE(widget->geometry(), control.geometry);
            ++checked;
        }
    };
    const QStringList keys = descriptions.keys();
    for (const QString &key : keys) {
        const WindowDescription &description = descriptions[key];
        if (description.kind == WindowDescription::Kind::kWindow ||
            description.kind == WindowDescription::Kind::kPart)
            check(key, description.size, description.controls);
        if (description.kind == WindowDescription::Kind::kPart)
            QCOMPARE(editor->window(key)->pos(), description.place);
        for (const PopupDescription &popup : description.popups)
            check(popup.name, popup.size, popup.controls);
    }
    QVERIFY(checked > 40);

    auto *tabs = editor.find<QTabBar>("MainWindow", "palette");
    for (int tab = 0; tab < 3; ++tab)
        QVERIFY(tabs->tabRect(tab).contains(QPoint(80 * tab + 40, 13)));
    auto *list = editor.find<RowList>("MainWindow", "tiles");
    for (int row = 0; row < 8; ++row)
        QCOMPARE(list->visualItemRect(list->item(row)), QRect(0, 28 * row, 240, 28));
}

void tst_EditorWindowSet::textsAreInTheLanguage_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("pencil");
    QTest::newRow("English") << QByteArray("en_US") << str("Pencil");
    QTest::newRow("Japanese") << QByteArray("ja_JP") << str("鉛筆");
    QTest::newRow("Chinese") << QByteArray("zh_CN") << str("铅笔");
    QTest::newRow("another falls back to English") << QByteArray("de_DE") << str("Pencil");
}

void tst_EditorWindowSet::textsAreInTheLanguage()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, pencil);
    const Editor editor(locale.constData());
    QCOMPARE(editor.find<QAbstractButton>("MainWindow", "drawPencil")->text(), pencil);
    QVERIFY(!editor.find<RowList>("MainWindow", "tiles")->item(0)->text().isEmpty());
}

void tst_EditorWindowSet::opensByKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("open");
    QTest::newRow("window") << str("MapProperties") << QStringList{str("MapProperties")};
    QTest::newRow("part opens its window") << str("MapEditTreeBox") << QStringList{str("MainWindow")};
    QTest::newRow("unknown") << str("Other") << QStringList();
    QTest::newRow("context menu") << str("Menu") << QStringList();
    QTest::newRow("the whole editor") << str("ApplicationWindow") << QStringList();
}

void tst_EditorWindowSet::opensByKey()
{
    QFETCH(QString, key);
    QFETCH(QStringList, open);
    const Editor editor;
    QCOMPARE(editor->open(key), !open.isEmpty());
    QCOMPARE(editor->openWindows(), open);
}

void tst_EditorWindowSet::stackHasTheLastOpenedOnTop()
{
    Editor editor;
    QCOMPARE(editor->openWindows(), QStringList());
    editor->open(str("MainWindow"));
    QCOMPARE(editor.takeTold(), (QStringList{str("visible"), str("push MainWindow"),
                                             str("windowState,MainWindow,open in MainWindow")}));
    editor->open(str("MapProperties"));
    editor->open(str("ImageSelector"));
    QCOMPARE(editor.takeTold(), opened("MapProperties") + opened("ImageSelector"));
    QCOMPARE(editor->openWindows(),
             (QStringList{str("MainWindow"), str("MapProperties"), str("ImageSelector")}));
    editor->close(str("ImageSelector"));
    QCOMPARE(editor.takeTold(), closed("ImageSelector"));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("MapProperties")}));
    QVERIFY(!editor->window(str("ImageSelector"))->isVisible());
}

void tst_EditorWindowSet::closingAWindowClosesWhatStandsAboveIt()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor->open(str("MapProperties"));
    editor->open(str("ImageSelector"));
    editor.takeTold();
    editor->close(str("MapProperties"));
    QCOMPARE(editor.takeTold(), closed("ImageSelector") + closed("MapProperties"));
    editor->close(str("MapProperties"));
    editor->close(str("Other"));
    QCOMPARE(editor.takeTold(), QStringList());
}

void tst_EditorWindowSet::openingAnOpenWindowTellsNothing()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor.takeTold();
    QVERIFY(editor->open(str("MainWindow")));
    QCOMPARE(editor.takeTold(), QStringList());
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_EditorWindowSet::newProjectIsCopiedThenOpen()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor.takeTold();
    editor.click("MainWindow", "fileNew");
    QCOMPARE(editor.takeTold(), opened("NewProject") + QStringList{str("action,fileNew,open in MainWindow")});
    auto *name = editor.find<QLineEdit>("NewProject", "name");
    QCOMPARE(name->text(), str("My first game"));
    name->selectAll();
    QTest::keyClicks(name, str("Quest"));
    editor.click("NewProject", "ok");
    QCOMPARE(editor.takeTold(), closed("NewProject") + opened("Copying"));
    QVERIFY(!editor->project()->isOpen());
    QTRY_COMPARE(editor.told, closed("Copying"));
    QVERIFY(editor->project()->isOpen());
    QCOMPARE(editor->window(str("MainWindow"))->windowTitle(), str("Quest[*] – Map Maker"));
    QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->count(), 4);
    QCOMPARE(editor.map()->size(), QSize(768, 512));
}

void tst_EditorWindowSet::copyingCannotBeClosedByHand()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor->open(str("Copying"));
    editor->window(str("Copying"))->close();
    QVERIFY(editor->openWindows().contains(str("Copying")));
    editor->close(str("Copying"));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_EditorWindowSet::originsFollowTheWindows()
{
    Editor editor;
    QCOMPARE(editor->origin(str("MainWindow")), QPoint());
    QSignalSpy moved(editor.operator->(), &EditorWindows::moved);
    editor->open(str("MainWindow"));
    EditorWindow *main = editor->window(str("MainWindow"));
    const auto told = [&moved](const char *key) {
        for (int index = moved.size() - 1; index >= 0; --index) {
            if (moved[index][0].toString() == str(key))
                return moved[index][1].toPoint();
        }
        return QPoint(-1, -1);
    };
    for (const QPoint &place : {main->pos(), QPoint(33, 44)}) {
        main->move(place);
        const QPoint at = main->mapToGlobal(QPoint());
        QCOMPARE(editor->origin(str("MainWindow")), at);
        QCOMPARE(told("MainWindow"), at);
        QCOMPARE(told("ApplicationWindow"), at);
        QCOMPARE(told("MapEditTreeBox"), at + QPoint(4, 376));
        QCOMPARE(told("MainWindowClient_mapEditorView"), at + QPoint(260, 116));
        QCOMPARE(editor->origin(str("MapEditTreeBox")), at + QPoint(4, 376));
        QCOMPARE(editor->origin(str("ApplicationWindow")), at);
    }
    QCOMPARE(editor->origin(QString()), editor->screenRect().topLeft());
    QCOMPARE(editor->origin(str("Other")), QPoint());
    QCOMPARE(editor->origin(str("Menu")), QPoint());

    main->move(0, 0);
    moved.clear();
    editor->open(str("MapProperties"));
    QCOMPARE(told("MapProperties"), main->mapToGlobal(QPoint(320, 150)));
    QCOMPARE(told("MainWindow"), QPoint(-1, -1));
}

void tst_EditorWindowSet::controlsAreToldWithTheirWindow()
{
    const Editor editor;
    QSignalSpy told(editor.operator->(), &EditorWindows::controlMoved);
    editor->open(str("NewProject"));
    const QPoint at = editor->origin(str("NewProject"));
    QCOMPARE(told.size(), 6);
    QCOMPARE(told[1][0].toString(), str("NewProject_name"));
    QCOMPARE(told[1][1].toPoint(), at + QPoint(130, 20));
}

void tst_EditorWindowSet::actionsAreTold_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("state");
    for (const char *name : {"editUndo", "editRedo", "modeMap", "modeEvent", "viewZoomIn", "viewZoomOut",
                             "viewZoomActual", "viewGrid", "drawPencil", "drawRectangle", "drawEllipse",
                             "drawFloodFill", "drawEraser", "layer1", "layer2", "layer3"})
        QTest::newRow(name) << QByteArray(name) << QString();
    QTest::newRow("fileSave") << QByteArray("fileSave") << str("close");
}

void tst_EditorWindowSet::actionsAreTold()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, state);
    Editor editor;
    editor.openProject();
    const QStringList told{str("action,%1,%2 in MainWindow").arg(QString::fromLatin1(name), state)};
    editor.click("MainWindow", name.constData());
    QCOMPARE(editor.takeTold(), told);
    editor.click("MainWindow", name.constData());
    QCOMPARE(editor.takeTold(), told);
}

void tst_EditorWindowSet::toolButtonsNeedAProject()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor.takeTold();
    editor.click("MainWindow", "drawEraser");
    QCOMPARE(editor.takeTold(), QStringList());
    editor->project()->run(str("newProject.create"));
    editor.click("MainWindow", "drawEraser");
    QVERIFY(editor.find<QAbstractButton>("MainWindow", "drawEraser")->isChecked());
    QVERIFY(!editor.find<QAbstractButton>("MainWindow", "drawPencil")->isChecked());
    editor.click("MainWindow", "drawEraser");
    QVERIFY(editor.find<QAbstractButton>("MainWindow", "drawEraser")->isChecked());
}

void tst_EditorWindowSet::rowsAreToldEvenWhenSelectedAlready()
{
    Editor editor;
    editor.openProject();
    const QStringList told{str("list,2, in MapEditTreeBox")};
    editor.clickRow("MapEditTreeBox", "maps", 2);
    QCOMPARE(editor.takeTold(), told);
    QCOMPARE(editor->project()->map()->name, str("Harbor"));
    editor.clickRow("MapEditTreeBox", "maps", 2);
    QCOMPARE(editor.takeTold(), told);
    editor.clickRow("MainWindow", "tiles", 0);
    QCOMPARE(editor.takeTold(), QStringList{str("list,0, in MainWindow")});
}

void tst_EditorWindowSet::rowsAreToldFromTheKeyboard()
{
    Editor editor;
    editor.openProject();
    auto *list = editor.find<RowList>("MapEditTreeBox", "maps");
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(editor.takeTold(), QStringList{str("list,1, in MapEditTreeBox")});
    QTest::keyClick(list, Qt::Key_Up);
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(editor.takeTold(), QStringList{str("list,0, in MapEditTreeBox")});
}

void tst_EditorWindowSet::rightClickSelectsWithoutTellingARow()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 3, Qt::RightButton);
    QCOMPARE(editor.takeTold(), (QStringList{str("push Popup"), str("popup,MapPopup, in Menu")}));
    QCOMPARE(editor->project()->map()->name, str("Oasis"));
}

void tst_EditorWindowSet::tabsAreToldEvenWhenCurrentAlready()
{
    Editor editor;
    editor.openProject();
    auto *tabs = editor.find<QTabBar>("MainWindow", "palette");
    for (int tab : {2, 2, 0}) {
        QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(80 * tab + 40, 13));
        QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,%1 in MainWindow").arg(tab)});
        QCOMPARE(tabs->currentIndex(), tab);
    }
    QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(80, 13));
    editor.takeTold();
    tabs->setCurrentIndex(2);
    QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,2 in MainWindow")});
    QCOMPARE(editor.find<RowList>("MainWindow", "tiles")->item(0)->text(), str("Wall"));
}

void tst_EditorWindowSet::mapTellsPressThenClick()
{
    Editor editor;
    editor.openProject();
    const QString in = str(" in MainWindowClient_mapEditorView");
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QCOMPARE(editor.takeTold(), QStringList{str("pressed,0,0") + in});
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QCOMPARE(editor.takeTold(), QStringList{str("mouseEvent,Map,click") + in});
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(-5, 40));
    QCOMPARE(editor.takeTold(), QStringList{str("pressed,0,0") + in});
}

void tst_EditorWindowSet::mapPaintsWithEachTool_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QPoint>("painted");
    QTest::addColumn<int>("tile");
    QTest::newRow("pencil") << QByteArray("drawPencil") << QPoint(3, 3) << 4;
    QTest::newRow("rectangle") << QByteArray("drawRectangle") << QPoint(5, 1) << 4;
    QTest::newRow("ellipse") << QByteArray("drawEllipse") << QPoint(5, 3) << 4;
    QTest::newRow("fill") << QByteArray("drawFloodFill") << QPoint(1, 7) << 4;
    QTest::newRow("eraser") << QByteArray("drawEraser") << QPoint(3, 3) << int(GameMap::kEmpty);
}

void tst_EditorWindowSet::mapPaintsWithEachTool()
{
    QFETCH(QByteArray, tool);
    QFETCH(QPoint, painted);
    QFETCH(int, tile);
    Editor editor;
    editor.openProject();
    const int before = editor->project()->map()->tile(0, painted);
    QVERIFY(before != tile);
    editor.clickRow("MainWindow", "tiles", 4);
    editor.click("MainWindow", tool.constData());
    const QImage pictureBefore = editor.map()->grab().toImage();
    // From cell (1, 1) to (5, 5).
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(48, 48));
    QMouseEvent move(QEvent::MouseMove, QPoint(176, 176), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.map(), &move);
    QVERIFY(editor.map()->grab().toImage() != pictureBefore);
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(176, 176));
    QCOMPARE(editor->project()->map()->tile(0, painted), tile);
    QVERIFY(editor->window(str("MainWindow"))->isWindowModified());
    editor.click("MainWindow", "editUndo");
    QCOMPARE(editor->project()->map()->tile(0, painted), before);
    QCOMPARE(editor.map()->grab().toImage(), pictureBefore);
}

void tst_EditorWindowSet::eventModeDoesNotPaint()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MainWindow", "tiles", 4);
    editor.click("MainWindow", "modeEvent");
    const QImage before = editor.map()->grab().toImage();
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(112, 112));
    QVERIFY(editor.map()->grab().toImage() != before);
    QCOMPARE(editor->project()->map()->tile(0, {3, 3}), 0);
    QVERIFY(!editor->project()->isModified());
}

void tst_EditorWindowSet::contextMenuOfTheMap()
{
    Editor editor;
    editor.openProject();
    const QPoint at(100, 120);
    QTest::mouseClick(editor.map(), Qt::RightButton, {}, at);
    QCOMPARE(editor.takeTold(), (QStringList{str("menuEvent,Map,click in MainWindowClient_mapEditorView"),
                                             str("push Popup"), str("popup,MapViewPopup, in Menu")}));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("Popup")}));
    QCOMPARE(editor->origin(str("Menu")), editor.map()->mapToGlobal(at));
    QCOMPARE(editor->origin(str("Popup")), editor->origin(str("Menu")));
    QCOMPARE(editor->project()->isModified(), false);
}

void tst_EditorWindowSet::popupOpensAWindow()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    editor.click("MapPopup", "mapProperties");
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")} + opened("MapProperties"));
    QCOMPARE(editor.find<QLineEdit>("MapProperties", "name")->text(), str("Forest path"));
    editor->close(str("MapProperties"));
    editor.clickRow("MainWindow", "tiles", 1, Qt::RightButton);
    QVERIFY(editor.told.contains(str("popup,TilePopup, in Menu")));
    editor.click("TilePopup", "changeTileSet");
    QVERIFY(editor->openWindows().contains(str("MapProperties")));
}

void tst_EditorWindowSet::popupClosesAtAPressElsewhere()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    editor.clickRow("MapEditTreeBox", "maps", 0);
    QCOMPARE(editor.takeTold(), (QStringList{str("pop Popup"), str("list,0, in MapEditTreeBox")}));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_EditorWindowSet::popupClosesWithEscape()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    QTest::keyClick(editor->window(str("MainWindow")), Qt::Key_Escape);
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")});
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    editor->close(str("Popup"));
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")});
}

void tst_EditorWindowSet::popupIsReplacedByTheNext()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    editor.clickRow("MapEditTreeBox", "maps", 2, Qt::RightButton);
    QCOMPARE(editor.takeTold(),
             (QStringList{str("pop Popup"), str("push Popup"), str("popup,MapPopup, in Menu")}));
    editor.click("MapPopup", "deleteMap");
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")});
    QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->count(), 3);
}

void tst_EditorWindowSet::popupIsAbandonedToAnotherProgram()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(editor.takeTold(), QStringList{str("abandoned")});
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(editor.takeTold(), QStringList());
}

void tst_EditorWindowSet::propertiesAreKeptWithOkOnly()
{
    Editor editor;
    editor.openProject();
    for (const char *button : {"cancel", "ok"}) {
        editor.clickRow("MapEditTreeBox", "maps", 0, Qt::RightButton);
        editor.click("MapPopup", "mapProperties");
        editor.takeTold();
        auto *name = editor.find<QLineEdit>("MapProperties", "name");
        QCOMPARE(name->text(), str("Village"));
        name->selectAll();
        QTest::keyClicks(name, str("Town"));
        editor.click("MapProperties", button);
        QCOMPARE(editor.takeTold(), closed("MapProperties"));
        QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->item(0)->text(),
                 str(qstrcmp(button, "ok") == 0 ? "Town" : "Village"));
    }
}

void tst_EditorWindowSet::pictureIsChosenInItsWindow()
{
    Editor editor;
    editor.openProject();
    const QImage before = editor.map()->grab().toImage();
    editor->project()->run(str("map.edit"));
    editor->open(str("MapProperties"));
    editor.takeTold();
    editor.click("MapProperties", "tileSet");
    QCOMPARE(editor.takeTold(), opened("ImageSelector"));
    const QImage meadow = editor.find<QWidget>("ImageSelector", "preview")->grab().toImage();
    editor.clickRow("ImageSelector", "images", 2);
    QCOMPARE(editor.takeTold(), QStringList{str("list,2, in ImageSelector")});
    QVERIFY(editor.find<QWidget>("ImageSelector", "preview")->grab().toImage() != meadow);
    editor.click("ImageSelector", "ok");
    QCOMPARE(editor.takeTold(), closed("ImageSelector"));
    editor.click("MapProperties", "ok");
    QCOMPARE(editor->project()->map()->tileSet, 2);
    QVERIFY(editor.map()->grab().toImage() != before);
}

void tst_EditorWindowSet::doubleClicksOpenAndAccept()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1);
    editor.takeTold();
    editor.doubleClickRow("MapEditTreeBox", "maps", 1);
    QVERIFY(editor->openWindows().contains(str("MapProperties")));
    QCOMPARE(editor.find<QLineEdit>("MapProperties", "name")->text(), str("Forest path"));
    editor->close(str("MapProperties"));

    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.click("MapPopup", "loadMap");
    editor.clickRow("MapLoader", "sampleMaps", 4);
    QCOMPARE(editor.find<QWidget>("MapLoader", "preview")->grab().toImage().isNull(), false);
    editor.doubleClickRow("MapLoader", "sampleMaps", 4);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor->project()->map()->name, str("Oasis"));
    QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->count(), 5);
}

void tst_EditorWindowSet::returnKeyAcceptsAndEscapeCancels()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapLoader"));
    QTest::keyClick(editor->window(str("MapLoader")), Qt::Key_Escape);
    QCOMPARE(editor->project()->rows(str("maps")).size(), 4);
    editor->open(str("MapLoader"));
    QTest::keyClick(editor.find<RowList>("MapLoader", "sampleMaps"), Qt::Key_Return);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor->project()->rows(str("maps")).size(), 5);
}

void tst_EditorWindowSet::valuesAreTold()
{
    Editor editor;
    editor.openProject();
    editor->project()->run(str("map.edit"));
    editor->open(str("MapProperties"));
    editor.takeTold();
    auto *width = editor.find<QSpinBox>("MapProperties", "width");
    QCOMPARE(width->value(), 24);
    QTest::keyClick(width, Qt::Key_Up);
    QCOMPARE(editor.takeTold(), QStringList{str("spinBox,=,25 in MapProperties")});
    editor.click("MapProperties", "showName");
    editor.click("MapProperties", "showName");
    QCOMPARE(editor.takeTold(), (QStringList{str("checked,showName,0 in MapProperties"),
                                             str("checked,showName,1 in MapProperties")}));
    editor.click("MapProperties", "ok");
    QCOMPARE(editor->project()->map()->size, QSize(25, 16));
}

void tst_EditorWindowSet::dialogsBlockTheEditorAndNothingElse()
{
    Editor editor;
    editor.openProject();
    // The lesson strip is such a window.
    QPushButton strip;
    strip.resize(100, 40);
    strip.show();
    QSignalSpy stripClicked(&strip, &QPushButton::clicked);
    const auto clickIn = [](QWidget *window, const QPoint &position) {
        // Through the window system, which is where blocked windows lose their events.
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, position);
    };
    QWidget *const main = editor->window(str("MainWindow"));
    auto *undo = editor.find<QAbstractButton>("MainWindow", "editUndo");
    QSignalSpy mainClicked(undo, &QAbstractButton::clicked);
    undo->setEnabled(true);
    const QPoint undoSpot = undo->geometry().center();

    clickIn(main, undoSpot);
    QCOMPARE(mainClicked.size(), 1);
    editor->open(str("MapProperties"));
    editor->open(str("ImageSelector"));
    clickIn(main, undoSpot);
    QCOMPARE(mainClicked.size(), 1);
    auto *cancel = editor.find<QAbstractButton>("MapProperties", "cancel");
    QSignalSpy cancelled(cancel, &QAbstractButton::clicked);
    clickIn(cancel->window(), cancel->geometry().center());
    QCOMPARE(cancelled.size(), 0);
    clickIn(&strip, QPoint(50, 20));
    QCOMPARE(stripClicked.size(), 1);
    editor->close(str("ImageSelector"));
    clickIn(cancel->window(), cancel->geometry().center());
    QCOMPARE(cancelled.size(), 1);
    clickIn(main, undoSpot);
    QCOMPARE(mainClicked.size(), 2);
}

void tst_EditorWindowSet::windowsHaveTitles()
{
    const Editor editor("ja_JP");
    QCOMPARE(editor->title(str("MapProperties")), str("マップの設定"));
    QCOMPARE(editor->title(str("MapEditTreeBox")), str("マップ一覧"));
    QCOMPARE(editor->title(str("Nowhere")), QString());
}

void tst_EditorWindowSet::minimisingIsTold()
{
    Editor editor;
    editor.openProject();
    editor->window(str("MainWindow"))->showMinimized();
    QTRY_COMPARE(editor.told, QStringList{str("invisible")});
    editor->window(str("MainWindow"))->showNormal();
    QTRY_COMPARE(editor.told, (QStringList{str("invisible"), str("visible")}));
}

void tst_EditorWindowSet::closingTheMainWindowEndsEverything()
{
    Editor editor;
    editor.openProject();
    editor->window(str("MainWindow"))->close();
    QCOMPARE(editor.takeTold(),
             (QStringList{str("invisible"), str("pop MainWindow"),
                          str("windowState,MainWindow,close in MainWindow"), str("main window closed")}));
    QVERIFY(editor->openWindows().isEmpty());
}

QTEST_MAIN(tst_EditorWindowSet)
#include "tst_EditorWindowSet.moc"
