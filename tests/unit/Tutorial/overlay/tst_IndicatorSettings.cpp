#include "IndicatorTest.h"
#include "LogCapture.h"

#include <QTextDocument>
#include <QtTest>

class tst_IndicatorSettings : public IndicatorTest
{
    Q_OBJECT

private Q_SLOTS:
    void mapHoldsExactlyItsKeys();
    void rebuiltIndicatorTakesEverythingOver();
    void rebuiltIndicatorMeasuresItsHint();
    void hintOfTheMapHasADocumentOfItsOwn();
    void emptyHintHidesTheText();
    void mapWithoutTooltipLeavesTheTextAlone();
    void closedTooltipIsRebuiltFromTheMap();
    void emptyMapReadsAsZero();
    void mapIsLogged();
};

void tst_IndicatorSettings::mapHoldsExactlyItsKeys()
{
    const QVariantMap settings = m_indicator->getSettings();
    const QMap<QString, int> expected{{QStringLiteral("arrowVisible"), QMetaType::Bool},
                                      {QStringLiteral("hint"), QMetaType::QString},
                                      {QStringLiteral("hintHeight"), QMetaType::Int},
                                      {QStringLiteral("iconKind"), QMetaType::Int},
                                      {QStringLiteral("lastX"), QMetaType::Int},
                                      {QStringLiteral("lastY"), QMetaType::Int},
                                      {QStringLiteral("mirror"), QMetaType::Bool},
                                      {QStringLiteral("newX"), QMetaType::Int},
                                      {QStringLiteral("newY"), QMetaType::Int},
                                      {QStringLiteral("nextButtonX"), QMetaType::Int},
                                      {QStringLiteral("nextButtonY"), QMetaType::Int},
                                      {QStringLiteral("nextWindowEnabled"), QMetaType::Bool},
                                      {QStringLiteral("noButtonX"), QMetaType::Int},
                                      {QStringLiteral("noButtonY"), QMetaType::Int},
                                      {QStringLiteral("offsetX"), QMetaType::Int},
                                      {QStringLiteral("offsetY"), QMetaType::Int},
                                      {QStringLiteral("repaintAll"), QMetaType::Bool},
                                      {QStringLiteral("textEditX"), QMetaType::Int},
                                      {QStringLiteral("textEditY"), QMetaType::Int},
                                      {QStringLiteral("tooltip"), QMetaType::Bool},
                                      {QStringLiteral("tooltipX"), QMetaType::Int},
                                      {QStringLiteral("tooltipY"), QMetaType::Int},
                                      {QStringLiteral("updateTextEditSize"), QMetaType::Bool},
                                      {QStringLiteral("upsideDown"), QMetaType::Bool},
                                      {QStringLiteral("windowKey"), QMetaType::QString},
                                      {QStringLiteral("yesButtonX"), QMetaType::Int},
                                      {QStringLiteral("yesButtonY"), QMetaType::Int},
                                      {QStringLiteral("yesNoWindowEnabled"), QMetaType::Bool}};
    QCOMPARE(settings.keys(), expected.keys());
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        QCOMPARE(static_cast<int>(settings.value(entry.key()).type()), entry.value());
    }
}

void tst_IndicatorSettings::rebuiltIndicatorTakesEverythingOver()
{
    m_indicator->setHint(QStringLiteral("Press <Next>"));
    m_indicator->setIconKind(3);
    m_indicator->showTooltip();
    m_indicator->setTargetWindowOffset(1700, -5, QStringLiteral("MapWindow"), true);
    m_indicator->tick(60);
    m_indicator->init(true, true);
    m_indicator->setTargetWindowOffset(1710, -7, QStringLiteral("MapWindow"), true);
    m_indicator->tick();
    const QVariantMap settings = m_indicator->getSettings();
    QVERIFY(settings.value(QStringLiteral("mirror")).toBool());
    QVERIFY(settings.value(QStringLiteral("upsideDown")).toBool());
    QCOMPARE(settings.value(QStringLiteral("textEditX")).toInt(), 0);

    m_indicator->close();
    m_indicator = std::make_unique<TestIndicator>(&m_host);
    m_indicator->setSettings(settings);
    QVariantMap rebuilt = m_indicator->getSettings();
    QVERIFY(rebuilt.value(QStringLiteral("updateTextEditSize")).toBool());
    rebuilt.insert(QStringLiteral("updateTextEditSize"),
                   settings.value(QStringLiteral("updateTextEditSize")));
    QCOMPARE(rebuilt, settings);
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("Press <Next>"));
    QVERIFY(!m_indicator->textEdit()->isHidden());
    QCOMPARE(m_indicator->textEdit()->height(), settings.value(QStringLiteral("hintHeight")).toInt());
    QVERIFY(m_indicator->tooltip()->isHidden());
    QVERIFY(m_indicator->arrowVisible());
}

void tst_IndicatorSettings::rebuiltIndicatorMeasuresItsHint()
{
    m_indicator->showTooltip();
    m_indicator->setHint(
        QStringLiteral("A hint that is long enough to be broken into several lines at 256 pixels, "
                       "so that its height depends on the width that it is laid out with."));
    m_indicator->tick();
    const QVariantMap settings = m_indicator->getSettings();
    m_indicator = std::make_unique<TestIndicator>(&m_host);
    m_indicator->setSettings(settings);
    m_indicator->tick();
    QCOMPARE(m_indicator->state("hintHeight"), settings.value(QStringLiteral("hintHeight")));
    QVERIFY(!m_indicator->state("updateTextEditSize").toBool());
}

void tst_IndicatorSettings::hintOfTheMapHasADocumentOfItsOwn()
{
    m_indicator->setHint(QStringLiteral("one"));
    const QPointer<QTextDocument> ofHint = m_indicator->textEdit()->document();
    m_indicator->font = QFont(QStringLiteral("Another Family"));
    m_indicator->setSettings(m_indicator->getSettings());
    const QPointer<QTextDocument> ofMap = m_indicator->textEdit()->document();
    QVERIFY(ofMap != ofHint);
    QCOMPARE(ofMap->parent(), nullptr);
    QCOMPARE(ofMap->defaultFont().family(), QStringLiteral("Another Family"));
    m_indicator->setSettings(m_indicator->getSettings());
    QCOMPARE(m_indicator->textEdit()->document(), ofMap.data());
    m_indicator.reset();
    QVERIFY(!ofHint.isNull());
    QVERIFY(!ofMap.isNull());
}

void tst_IndicatorSettings::emptyHintHidesTheText()
{
    QVariantMap settings = m_indicator->getSettings();
    m_indicator->setHint(QStringLiteral("shown"));
    settings.insert(QStringLiteral("updateTextEditSize"), true);
    settings.insert(QStringLiteral("hintHeight"), 91);
    m_indicator->setSettings(settings);
    QVERIFY(m_indicator->textEdit()->isHidden());
    QCOMPARE(m_indicator->textEdit()->height(), 91);
    QVERIFY(m_indicator->state("updateTextEditSize").toBool());
}

void tst_IndicatorSettings::mapWithoutTooltipLeavesTheTextAlone()
{
    m_indicator->setHint(QStringLiteral("shown"));
    QVariantMap settings = m_indicator->getSettings();
    settings.insert(QStringLiteral("tooltip"), false);
    settings.insert(QStringLiteral("hint"), QStringLiteral("not shown"));
    settings.insert(QStringLiteral("updateTextEditSize"), false);
    settings.insert(QStringLiteral("tooltipX"), 55);
    m_indicator->setSettings(settings);
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("shown"));
    QCOMPARE(m_indicator->state("hint").toString(), QStringLiteral("not shown"));
    QVERIFY(!m_indicator->state("updateTextEditSize").toBool());
    QCOMPARE(m_indicator->tooltip()->x(), 0);
}

void tst_IndicatorSettings::closedTooltipIsRebuiltFromTheMap()
{
    m_indicator->setHint(QStringLiteral("shown"));
    const QVariantMap settings = m_indicator->getSettings();
    m_indicator->tooltip()->close();
    QVERIFY(!m_indicator->getSettings().contains(QStringLiteral("textEditX")));
    QCOMPARE(m_indicator->state("tooltipX").toInt(), 0);
    m_indicator->setSettings(settings);
    QVERIFY(m_indicator->tooltip() != nullptr);
    QCOMPARE(m_indicator->textEdit()->toPlainText(), QStringLiteral("shown"));
}

void tst_IndicatorSettings::emptyMapReadsAsZero()
{
    m_indicator->setTargetWindowOffset(300, 300, QStringLiteral("MainWindow"), true);
    m_indicator->init(true, true);
    m_indicator->tick(5);
    m_indicator->setSettings({});
    const QVariantMap settings = m_indicator->getSettings();
    for (const char *name :
         {"newX", "newY", "lastX", "lastY", "hintHeight", "nextButtonX", "nextButtonY", "yesButtonX",
          "yesButtonY", "noButtonX", "noButtonY", "offsetX", "offsetY", "iconKind"}) {
        QCOMPARE(settings.value(QLatin1String(name)).toInt(), 0);
    }
    for (const char *name : {"upsideDown", "mirror", "repaintAll", "updateTextEditSize", "arrowVisible",
                             "nextWindowEnabled", "yesNoWindowEnabled"}) {
        QCOMPARE(settings.value(QLatin1String(name)).toBool(), false);
    }
    QCOMPARE(settings.value(QStringLiteral("windowKey")).toString(), QString());
    QVERIFY(TestIndicator::next()->isHidden());
    QVERIFY(TestIndicator::yes()->isHidden());
    QVERIFY(TestIndicator::no()->isHidden());
}

void tst_IndicatorSettings::mapIsLogged()
{
    LogCapture log;
    m_indicator->setSettings({{QStringLiteral("windowKey"), QStringLiteral("MapWindow")}});
    QCOMPARE(log.debugs().size(), 1);
    QVERIFY(log.debugs().constFirst().contains(
        QStringLiteral("TutorialIndicator::setSettings 215 QMap((\"windowKey\"")));
}

QTEST_MAIN(tst_IndicatorSettings)
#include "tst_IndicatorSettings.moc"
