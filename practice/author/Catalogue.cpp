#include "author/Catalogue.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

/// The child elements of the present one that are called @p name; whatever else there is, is passed over.
bool nextCalled(QXmlStreamReader *xml, QLatin1String name)
{
    while (xml->readNextStartElement()) {
        if (xml->name() == name) {
            return true;
        }
        xml->skipCurrentElement();
    }
    return false;
}

} // namespace

Catalogue Catalogue::read(const QString &path, const QString &context, QStringList *problems)
{
    Catalogue catalogue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems->append(QStringLiteral("%1: it cannot be read: %2").arg(path, file.errorString()));
        return catalogue;
    }
    QXmlStreamReader xml(&file);
    xml.readNextStartElement(); // the whole
    while (nextCalled(&xml, QLatin1String("context"))) {
        bool isIt = false;
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("name")) {
                isIt = xml.readElementText() == context;
            } else if (isIt && xml.name() == QLatin1String("message")) {
                QString source;
                QString text;
                while (xml.readNextStartElement()) {
                    if (xml.name() == QLatin1String("source")) {
                        source = xml.readElementText();
                    } else if (xml.name() == QLatin1String("translation")) {
                        text = xml.readElementText();
                    } else {
                        xml.skipCurrentElement();
                    }
                }
                catalogue.m_texts.insert(source, text);
            } else {
                xml.skipCurrentElement();
            }
        }
    }
    if (xml.hasError()) {
        problems->append(QStringLiteral("%1:%2: %3").arg(path).arg(xml.lineNumber()).arg(xml.errorString()));
    }
    return catalogue;
}
