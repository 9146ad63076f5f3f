#include "LogCapture.h"
#include "Tutorial/localisation/TranslationOutput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_TranslationOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void bothFilesAreWritten();
    void theSecondIsNotTriedWhenTheFirstFails();
    void theFirstStaysWhenTheSecondFails();
    void theResourceSystemIsReadOnly();

private:
    [[nodiscard]] TranslationOutput output() const
    {
        return TranslationOutput([this](const QString &name) { return path(name); });
    }
    [[nodiscard]] QString path(const QString &name) const { return m_directory->filePath(name); }
    [[nodiscard]] static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
    }
    [[nodiscard]] static QString failure(int number, const QString &path)
    {
        return QStringLiteral(
                   "..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::saveTranslation "
                   "%1 Failed to save \"%2\"")
            .arg(number)
            .arg(path);
    }

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_TranslationOutput::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("translations")));
}

void tst_TranslationOutput::bothFilesAreWritten()
{
    LogCapture log;
    QVERIFY(output().save(QStringLiteral("ja_JP"), QStringLiteral("en_US")));
    const QByteArray empty = QDomDocument().toByteArray(4);
    QCOMPARE(contentOf(path(QStringLiteral("translations/ja_JP.ts"))), empty);
    QCOMPARE(contentOf(path(QStringLiteral("translations/en_US.ts"))), empty);
    QVERIFY(log.warnings().isEmpty());
}

void tst_TranslationOutput::theSecondIsNotTriedWhenTheFirstFails()
{
    const QString blocked = path(QStringLiteral("translations/ja_JP.ts"));
    QVERIFY(QDir().mkdir(blocked));
    LogCapture log;
    QVERIFY(!output().save(QStringLiteral("ja_JP"), QStringLiteral("en_US")));
    QCOMPARE(log.warnings().constLast(), failure(1857, blocked));
    QVERIFY(!QFile::exists(path(QStringLiteral("translations/en_US.ts"))));
}

void tst_TranslationOutput::theFirstStaysWhenTheSecondFails()
{
    const QString blocked = path(QStringLiteral("translations/en_US.ts"));
    QVERIFY(QDir().mkdir(blocked));
    LogCapture log;
    QVERIFY(!output().save(QStringLiteral("ja_JP"), QStringLiteral("en_US")));
    QCOMPARE(log.warnings().constLast(), failure(1863, blocked));
    QVERIFY(QFile::exists(path(QStringLiteral("translations/ja_JP.ts"))));
}

void tst_TranslationOutput::theResourceSystemIsReadOnly()
{
    LogCapture log;
    QVERIFY(!TranslationOutput().save(QStringLiteral("ja_JP"), QStringLiteral("en_US")));
    QCOMPARE(log.warnings().constLast(), failure(1857, QStringLiteral(":/translations/ja_JP.ts")));
}

QTEST_APPLESS_MAIN(tst_TranslationOutput)
#include "tst_TranslationOutput.moc"
