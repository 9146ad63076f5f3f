#pragma once

#include "EditorFixture.h"

#include <QComboBox>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTabBar>

/// The editor with the last step of the sample project open. Its texts are numbers, as in the source files.
class SampleEditor : public Editor
{
public:
    /// @p texts: what stands in the project in place of each number, such as "#12".
    explicit SampleEditor(const char *locale = "en_US", const QMap<QString, QString> &texts = {})
        : Editor(locale)
    {
        openProject();
        QMap<QString, QString> files;
        const QDir data(str(TUTORIAL_SOURCE_DIR "/resource/preset/step19/data"));
        const QStringList names = data.entryList(QDir::Files);
        for (const QString &name : names) {
            QFile file(data.filePath(name));
            if (file.open(QIODevice::ReadOnly)) {
                files.insert(str("data/") + name, withTexts(QString::fromUtf8(file.readAll()), texts));
            }
        }
        if (files.isEmpty() || !(*this)->replaceFiles(files)) {
            qFatal("the sample project cannot be opened");
        }
        takeTold();
    }

    /// What stands in the project, such as value("Items", "/1/price").
    [[nodiscard]] QJsonValue value(const char *file, const char *pointer) const
    {
        return project()->files().value(str("data/%1.json").arg(str(file)), str(pointer));
    }

    void openDatabase(int tab)
    {
        click("MainWindow", "toolDatabase");
        clickTab("DatabaseMain", "tabs", tab);
    }

    void clickTab(const char *window, const char *name, int tab)
    {
        auto *tabs = find<QTabBar>(window, name);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
    }

    /// A click on a row and another one at once.
    void openRow(const char *window, const char *name, int row)
    {
        clickRow(window, name, row);
        doubleClickRow(window, name, row);
    }

    void setNumber(const char *window, const char *name, int number)
    {
        find<QSpinBox>(window, name)->setValue(number);
    }

    /// Chooses by the keyboard, as a person who has the focus there.
    void choose(const char *window, const char *name, int row)
    {
        auto *box = find<QComboBox>(window, name);
        QTest::keyClick(box, row == 0 ? Qt::Key_End : Qt::Key_Home);
        QTest::keyClick(box, Qt::Key_Home);
        for (int step = 0; step < row; ++step) {
            QTest::keyClick(box, Qt::Key_Down);
        }
    }

    void type(const char *window, const char *name, const QString &text)
    {
        auto *edit = find<QLineEdit>(window, name);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    /// The texts of a list's rows.
    [[nodiscard]] QStringList texts(const char *window, const char *name) const
    {
        const auto *list = find<RowList>(window, name);
        QStringList texts;
        for (int row = 0; row < list->count(); ++row) {
            texts.append(list->item(row)->text());
        }
        return texts;
    }

    [[nodiscard]] bool isThere(const char *window, const char *name) const
    {
        return find<QWidget>(window, name)->isVisible();
    }

private:
    static QString withTexts(QString data, const QMap<QString, QString> &texts)
    {
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            const QByteArray list = QJsonDocument(QJsonArray{*text}).toJson(QJsonDocument::Compact);
            data.replace(str("\"%1\"").arg(text.key()), QString::fromUtf8(list).mid(1).chopped(1));
        }
        return data;
    }

    [[nodiscard]] Project *project() const { return (*this)->project(); }
};
