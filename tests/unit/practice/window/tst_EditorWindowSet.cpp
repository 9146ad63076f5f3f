#include "DescriptionFiles.h"
#include "EditorFixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

/// The windows and the popup: where they stand, and what is told of them when they open, move and close.
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
    void popupOpensAWindow();
    void popupClosesAtAPressElsewhere();
    void popupClosesAtAPressWhereItWasOpened();
    void popupClosesWithEscape();
    void popupIsReplacedByTheNext();
    void aClosedPopupKeepsNoDraft();
    void popupIsAbandonedToAnotherProgram();
    void popupIsAbandonedToAButtonOfTheCompanion();
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
    const auto descriptions = DescriptionSet::read(str(":/descriptions"), nullptr, &errors);
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
            description.kind == WindowDescription::Kind::kPart) {
            check(key, description.size, description.controls);
        }
        if (description.kind == WindowDescription::Kind::kPart) {
            QCOMPARE(editor->window(key)->pos(), description.place);
        }
        for (const PopupDescription &popup : description.popups) {
            check(popup.name, popup.size, popup.controls);
        }
    }
    QVERIFY(checked > 40);

    auto *tabs = editor.find<QTabBar>("MainWindow", "palette");
    for (int tab = 0; tab < 3; ++tab) {
        QVERIFY(tabs->tabRect(tab).contains(QPoint(80 * tab + 40, 13)));
    }
    auto *list = editor.find<RowList>("MainWindow", "tiles");
    for (int row = 0; row < 8; ++row) {
        QCOMPARE(list->visualItemRect(list->item(row)), QRect(0, 28 * row, 240, 28));
    }
}

void tst_EditorWindowSet::textsAreInTheLanguage_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("pencil");
    QTest::addColumn<QString>("tile");
    QTest::newRow("English") << QByteArray("en_US") << str("Pencil") << str("Tall grass");
    QTest::newRow("Japanese") << QByteArray("ja_JP") << str("鉛筆") << str("深い草");
    QTest::newRow("Chinese") << QByteArray("zh_CN") << str("铅笔") << str("高草");
    QTest::newRow("another falls back to English")
        << QByteArray("de_DE") << str("Pencil") << str("Tall grass");
}

void tst_EditorWindowSet::textsAreInTheLanguage()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, pencil);
    QFETCH(QString, tile);
    const Editor editor(locale.constData());
    QCOMPARE(editor.find<QAbstractButton>("MainWindow", "drawPencil")->text(), pencil);
    QCOMPARE(editor.find<RowList>("MainWindow", "tiles")->item(1)->text(), tile);
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
    QCOMPARE(editor.takeTold().constLast(), str("textLength,name,5 in NewProject"));
    editor.click("NewProject", "ok");
    QCOMPARE(editor.takeTold(), closed("NewProject") + opened("Copying"));
    QVERIFY(!editor->project()->isOpen());
    QTRY_COMPARE(editor.told, closed("Copying"));
    QVERIFY(editor->project()->isOpen());
    QCOMPARE(editor.frame()->windowTitle(), str("Quest[*] – Map Maker"));
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
    QVERIFY(!editor->origin(str("MainWindow")));
    QSignalSpy moved(editor.operator->(), &EditorWindows::moved);
    editor->open(str("MainWindow"));
    const EditorWindow *main = editor->window(str("MainWindow"));
    QWidget *frame = editor.frame();
    const auto told = [&moved](const char *key) {
        for (int index = moved.size() - 1; index >= 0; --index) {
            if (moved[index][0].toString() == str(key)) {
                return moved[index][1].toPoint();
            }
        }
        return QPoint(-1, -1);
    };
    for (const QPoint &place : {frame->pos(), QPoint(33, 44)}) {
        frame->move(place);
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
    QVERIFY(!editor->origin(str("Other")));
    QVERIFY(!editor->origin(str("Menu")));

    frame->move(0, 0);
    moved.clear();
    editor->open(str("NewProject"));
    QCOMPARE(told("NewProject"), main->mapToGlobal(QPoint(330, 220)));
    QCOMPARE(told("MainWindow"), QPoint(-1, -1));
}

void tst_EditorWindowSet::controlsAreToldWithTheirWindow()
{
    const Editor editor;
    QSignalSpy told(editor.operator->(), &EditorWindows::controlMoved);
    editor->open(str("NewProject"));
    const QPoint at = editor->origin(str("NewProject")).value();
    QCOMPARE(told.size(), 8);
    QCOMPARE(told[1][0].toString(), str("NewProject_name"));
    QCOMPARE(told[1][1].toPoint(), at + QPoint(130, 20));
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

void tst_EditorWindowSet::popupClosesAtAPressWhereItWasOpened()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    EditorWindow *const popup = editor->window(str("MapPopup"));
    // Beside the entries, but inside: as in any menu, nothing happens.
    QTest::mouseClick(popup, Qt::LeftButton, {}, QPoint(1, 1));
    QCOMPARE(editor.takeTold(), QStringList());
    QTest::mouseClick(popup, Qt::LeftButton, {}, QPoint(0, 2));
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")});
    QVERIFY(!popup->isVisible());
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

void tst_EditorWindowSet::aClosedPopupKeepsNoDraft()
{
    Editor editor;
    editor.openProject();
    const EditorWindow *popup = editor->window(str("MapPopup"));
    const auto openAbove = [&editor, popup] {
        editor->open(str("MapProperties"));
        ControlAction openMenu;
        openMenu.popup = str("MapPopup");
        editor->window(str("MapProperties"))->act(openMenu, QPoint(50, 50));
        return &popup->layer() == &editor->window(str("MapProperties"))->layer();
    };
    QVERIFY(openAbove());
    editor->close(str("MapProperties"));
    QCOMPARE(&popup->layer(), static_cast<DataLayer *>(&editor->project()->files()));
    QVERIFY(openAbove());
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(&popup->layer(), static_cast<DataLayer *>(&editor->project()->files()));
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

void tst_EditorWindowSet::popupIsAbandonedToAButtonOfTheCompanion()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    editor->takeFocusBack();
    QCOMPARE(editor.takeTold(), QStringList{str("abandoned")});
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    editor->takeFocusBack();
    QCOMPARE(editor.takeTold(), QStringList());
}

void tst_EditorWindowSet::dialogsBlockTheEditorAndNothingElse()
{
    Editor editor;
    editor.openProject();
    auto *strip = new QPushButton(str("Next"));
    editor->dock(strip);
    QVERIFY(QTest::qWaitFor([strip] { return strip->height() > 0; }));
    QSignalSpy stripClicked(strip, &QPushButton::clicked);
    const auto click = [](const QWidget *widget) {
        // Through the window system, as a person does it.
        QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(widget->window(), widget->rect().center()));
    };
    auto *grid = editor.find<QAbstractButton>("MainWindow", "viewGrid");
    QSignalSpy mainClicked(grid, &QAbstractButton::clicked);

    click(grid);
    QCOMPARE(mainClicked.size(), 1);
    editor->open(str("MapProperties"));
    editor->open(str("ImageSelector"));
    click(grid);
    QCOMPARE(mainClicked.size(), 1);
    QTest::keyClick(editor.frame()->windowHandle(), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(mainClicked.size(), 1);
    auto *cancel = editor.find<QAbstractButton>("MapProperties", "cancel");
    QSignalSpy cancelled(cancel, &QAbstractButton::clicked);
    click(cancel);
    QCOMPARE(cancelled.size(), 0);
    editor.frame()->close();
    QCOMPARE(editor->openWindows().size(), 3);
    click(strip);
    QCOMPARE(stripClicked.size(), 1);
    editor->close(str("ImageSelector"));
    click(cancel);
    QCOMPARE(cancelled.size(), 1);
    click(grid);
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
    editor.frame()->showMinimized();
    QTRY_COMPARE(editor.told, QStringList{str("invisible")});
    editor.frame()->showNormal();
    QTRY_COMPARE(editor.told, (QStringList{str("invisible"), str("visible")}));
}

void tst_EditorWindowSet::closingTheMainWindowEndsEverything()
{
    Editor editor;
    editor.openProject();
    editor.frame()->close();
    QCOMPARE(editor.takeTold(),
             (QStringList{str("invisible"), str("pop MainWindow"),
                          str("windowState,MainWindow,close in MainWindow"), str("main window closed")}));
    QVERIFY(editor->openWindows().isEmpty());
}

QTEST_MAIN(tst_EditorWindowSet)
#include "tst_EditorWindowSet.moc"
