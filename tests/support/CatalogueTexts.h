#pragma once

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QVector>
#include <QXmlStreamReader>

/// One text of a translation catalogue, as it stands in the .ts file.
struct CatalogueText
{
    QString context;
    QString source;
    QString translation;
    /// "unfinished", "vanished" or "obsolete"; empty for a text that is finished and in use.
    QString state;

    [[nodiscard]] QString name() const { return context + QStringLiteral(": ") + source; }
};

inline QByteArray catalogueBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The texts of a .ts file in their order; those before the place that is no XML when it is broken.
inline QVector<CatalogueText> textsOf(const QByteArray &catalogue)
{
    QVector<CatalogueText> texts;
    CatalogueText text;
    QString context;
    QXmlStreamReader reader(catalogue);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement() && reader.name() == QLatin1String("message")) {
            texts.append(text);
        } else if (!reader.isStartElement()) {
            continue;
        } else if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("message")) {
            text = {context, {}, {}, {}};
        } else if (reader.name() == QLatin1String("source")) {
            text.source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            text.state = reader.attributes().value(QLatin1String("type")).toString();
            text.translation = reader.readElementText();
        }
    }
    return texts;
}

/// The catalogue after @p lupdate has held it against the sources in the folder: what is new there is
/// "unfinished", what has gone from there "vanished". Empty when it cannot.
inline QByteArray updatedCatalogue(const QByteArray &catalogue, const QString &lupdate, const QString &folder)
{
    const QTemporaryDir room;
    const QString path = room.filePath(QStringLiteral("texts.ts"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(catalogue) != catalogue.size()) {
            return {};
        }
    }
    QProcess update;
    update.start(lupdate, {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"),
                           folder, QStringLiteral("-ts"), path});
    const bool done = update.waitForFinished() && update.exitStatus() == QProcess::NormalExit;
    return done && update.exitCode() == 0 ? catalogueBytes(path) : QByteArray();
}

/// The places for values in a text, "%1" and so on, sorted.
inline QStringList placesForValues(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%\\d"));
    QStringList places;
    for (auto found = place.globalMatch(text); found.hasNext();) {
        places.append(found.next().captured());
    }
    places.sort();
    return places;
}
