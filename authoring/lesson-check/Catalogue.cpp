#include "lesson-check/Catalogue.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace {

QSet<QString> placeMarkers(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("%[1-9]"));
    QSet<QString> markers;
    for (auto match = form.globalMatch(text); match.hasNext();) {
        markers.insert(match.next().captured());
    }
    return markers;
}

/// One pass over the elements of a .ts file.
class Reader
{
public:
    Reader(QString file, const QByteArray &xml, Findings &findings)
        : m_file(std::move(file))
        , m_xml(xml)
        , m_findings(findings)
    {
    }

    QMap<QString, Catalogue::Messages> read(const QString &locale)
    {
        if (m_xml.readNextStartElement()) {
            const QString language = m_xml.attributes().value(QLatin1String("language")).toString();
            if (m_xml.name() != QLatin1String("TS") || language != locale) {
                report(line(), {}, {},
                       QStringLiteral("the root has to be TS with the language \"%1\"").arg(locale));
            }
            while (m_xml.readNextStartElement()) {
                if (m_xml.name() == QLatin1String("context")) {
                    readContext();
                } else {
                    m_xml.skipCurrentElement();
                }
            }
        }
        if (m_xml.hasError()) {
            report(line(), {}, {}, m_xml.errorString());
        }
        return m_contexts;
    }

private:
    void readContext()
    {
        QString context;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("name")) {
                context = m_xml.readElementText();
                if (m_contexts.contains(context)) {
                    report(line(), context, {}, QStringLiteral("the context stands twice"));
                }
                m_contexts[context];
            } else if (m_xml.name() == QLatin1String("message")) {
                readMessage(context);
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    void readMessage(const QString &context)
    {
        Catalogue::Message message{line(), {}};
        QString source;
        QString state;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("source")) {
                source = m_xml.readElementText();
            } else if (m_xml.name() == QLatin1String("translation")) {
                state = m_xml.attributes().value(QLatin1String("type")).toString();
                message.translation = m_xml.readElementText();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (m_contexts.value(context).contains(source)) {
            report(message.line, context, source, QStringLiteral("the text stands twice"));
        }
        if (!state.isEmpty()) {
            report(message.line, context, source, QStringLiteral("the translation is marked %1").arg(state));
        } else if (message.translation.trimmed().isEmpty()) {
            report(message.line, context, source, QStringLiteral("the translation is empty"));
        } else {
            m_contexts[context].insert(source, message);
        }
        const QSet<QString> markers = placeMarkers(source);
        for (const QString &marker : markers) {
            if (!message.translation.contains(marker)) {
                report(message.line, context, source,
                       QStringLiteral("the translation lacks the place marker %1").arg(marker));
            }
        }
    }

    [[nodiscard]] int line() const { return static_cast<int>(m_xml.lineNumber()); }

    void report(int at, const QString &context, const QString &source, const QString &text)
    {
        m_findings.append({Finding::Kind::kError, m_file, at, context, source, text});
    }

    QString m_file;
    QXmlStreamReader m_xml;
    Findings &m_findings;
    QMap<QString, Catalogue::Messages> m_contexts;
};

} // namespace

Catalogue::Catalogue(QString file, const QString &locale, const QByteArray &xml, Findings &findings)
    : m_file(std::move(file))
    , m_locale(locale)
    , m_contexts(Reader(m_file, xml, findings).read(locale))
{
}
