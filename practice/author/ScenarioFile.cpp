#include "author/ScenarioFile.h"

#include "author/Catalogue.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr auto kByteOrderMark = "\xEF\xBB\xBF";

QString asJson(const QString &text)
{
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}

/// What a text in JSON's quotes says.
QString fromJson(const QString &quoted)
{
    return QJsonDocument::fromJson(QStringLiteral("[%1]").arg(quoted).toUtf8()).array().at(0).toString();
}

int lineAt(const QString &text, int position)
{
    return int(std::count(text.cbegin(), text.cbegin() + position, QLatin1Char('\n'))) + 1;
}

/// Puts the texts of @p catalogue in the place of their calls. No line is added or lost.
QString withTexts(const QString &scenario, const Catalogue &catalogue, const QString &path,
                  const QString &where, QStringList *problems)
{
    static const QRegularExpression call(QStringLiteral(R"re(qsTr\(\s*("(?:[^"\\\n]|\\.)*")\s*\))re"));
    QString text;
    int done = 0;
    QRegularExpressionMatchIterator calls = call.globalMatch(scenario);
    while (calls.hasNext()) {
        const QRegularExpressionMatch match = calls.next();
        const QString source = fromJson(match.captured(1));
        if (!catalogue.contains(source)) {
            problems->append(QStringLiteral("%1:%2: %3 has no text \"%4\"; the hint shows just that")
                                 .arg(path)
                                 .arg(lineAt(scenario, match.capturedStart()))
                                 .arg(where, source));
        }
        text.append(scenario.constData() + done, match.capturedStart() - done);
        text += asJson(catalogue.contains(source) ? catalogue.text(source) : source);
        done = match.capturedEnd();
    }
    return text + scenario.mid(done);
}

/// Empty when the text holds a list.
QString listProblem(const QString &text, const QString &path)
{
    const int begin = text.indexOf(QLatin1Char('['));
    const int end = text.lastIndexOf(QLatin1Char(']'));
    if (begin < 0 || end < begin) {
        return QStringLiteral("%1: it holds no list of steps, \"var scenario = [\" to \"];\"").arg(path);
    }
    QJsonParseError error = {};
    const QByteArray list = text.mid(begin, end - begin + 1).toUtf8();
    const QJsonDocument document = QJsonDocument::fromJson(list, &error);
    if (document.isArray()) {
        return {};
    }
    const int line = lineAt(text, begin) + list.left(error.offset).count('\n');
    return QStringLiteral("%1:%2: %3").arg(path).arg(line).arg(error.errorString());
}

} // namespace

ScenarioFile::ScenarioFile(const QString &path, const QString &locale)
    : m_path(path)
    , m_locale(locale)
{
}

QString ScenarioFile::name() const
{
    return QFileInfo(m_path).completeBaseName();
}

QStringList ScenarioFile::catalogues() const
{
    const QDir folder = QFileInfo(m_path).dir();
    return {folder.filePath(QStringLiteral("%1.%2.ts").arg(name(), m_locale)),
            QDir::cleanPath(folder.filePath(QStringLiteral("../../translations/%1.ts").arg(m_locale)))};
}

QStringList ScenarioFile::files() const
{
    return QStringList(m_path) + catalogues();
}

QString ScenarioFile::read(QStringList *problems) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems->append(QStringLiteral("%1: it cannot be read: %2").arg(m_path, file.errorString()));
        return {};
    }
    QByteArray bytes = file.readAll();
    if (bytes.startsWith(kByteOrderMark)) {
        bytes = bytes.mid(3);
    }
    const QStringList known = catalogues();
    QString used;
    for (const QString &path : known) {
        used = used.isEmpty() && QFile::exists(path) ? path : used;
    }
    if (used.isEmpty()) {
        problems->append(QStringLiteral("%1: there is no catalogue of its texts, neither %2 nor %3")
                             .arg(m_path, known.at(0), known.at(1)));
    }
    const Catalogue catalogue = used.isEmpty() ? Catalogue() : Catalogue::read(used, name(), problems);
    QString text = withTexts(QString::fromUtf8(bytes), catalogue, m_path,
                             used.isEmpty() ? QStringLiteral("no catalogue") : used, problems);
    const QString problem = listProblem(text, m_path);
    if (!problem.isEmpty()) {
        problems->append(problem);
        return {};
    }
    return text;
}
