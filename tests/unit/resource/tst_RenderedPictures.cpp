#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

/// Every picture of the project that is drawn as SVG: its PNG file is what scripts/render-pictures makes of
/// it.
class tst_RenderedPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPictureIsThatOfItsSource();

private:
    QTemporaryDir m_rendered;
};

void tst_RenderedPictures::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("rsvg-convert")).isEmpty()) {
        QSKIP("rsvg-convert is not installed (package librsvg2-bin)", "");
    }
    QProcess render;
    render.setProcessChannelMode(QProcess::MergedChannels);
    render.start(QStringLiteral(TUTORIAL_SOURCE_DIR "/scripts/render-pictures"), {m_rendered.path()});
    QVERIFY(render.waitForFinished());
    QVERIFY2(render.exitStatus() == QProcess::NormalExit && render.exitCode() == 0,
             render.readAll().constData());
}

void tst_RenderedPictures::everyPictureIsThatOfItsSource()
{
    int count = 0;
    for (const char *root : {"resource", "practice"}) {
        QDirIterator files(QStringLiteral(TUTORIAL_SOURCE_DIR "/") + QLatin1String(root),
                           {QStringLiteral("*.svg")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QString picture = files.next();
            picture.replace(QStringLiteral("/svg/"), QStringLiteral("/"));
            picture.replace(QStringLiteral(".svg"), QStringLiteral(".png"));
            const QString rendered = m_rendered.filePath(picture.mid(int(qstrlen(TUTORIAL_SOURCE_DIR "/"))));
            const QImage expected(rendered);
            QVERIFY2(!expected.isNull(), qPrintable(rendered));
            QVERIFY2(QImage(picture) == expected,
                     qPrintable(picture + QStringLiteral(" is not what scripts/render-pictures makes")));
            ++count;
        }
    }
    QVERIFY(count > 0);
}

QTEST_GUILESS_MAIN(tst_RenderedPictures)
#include "tst_RenderedPictures.moc"
