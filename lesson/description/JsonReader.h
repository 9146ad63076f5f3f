#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QRect>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// A text in the three languages, by locale name.
using LocalText = QMap<QString, QString>;

/// One object of a JSON file, with the place at which it stands.
struct JsonPlace
{
    QString file;
    QString place;
    QJsonObject object;
};

/// Reads one object of a JSON file field by field and writes down what is wrong with it: each error line
/// names the file, the place in it and the mend. A wrong or missing field reads as an empty value, so that
/// one pass finds all errors. All readers of a file share one error list, which the caller owns and which
/// outlives them.
class JsonReader
{
public:
    JsonReader(JsonPlace place, QStringList *errors);

    /// The object in the file at @p path; empty, with an error added, when it cannot be read or is not JSON.
    static std::optional<JsonReader> open(const QString &path, QStringList *errors);

    [[nodiscard]] bool has(const QString &field) const;

    /// The required fields: an error when absent or of another type.
    QString text(const QString &field);
    QSize size(const QString &field);
    QRect rect(const QString &field);
    QPoint point(const QString &field);
    LocalText localText(const QString &field);
    QVector<LocalText> localTexts(const QString &field);
    int number(const QString &field);
    QVector<int> numbers(const QString &field, int count);

    /// The optional fields: @p fallback when absent, an error only when of another type.
    QString text(const QString &field, const QString &fallback);
    int number(const QString &field, int fallback);
    bool flag(const QString &field);

    /// The text, which must be one of @p allowed.
    QString choice(const QString &field, const QStringList &allowed);

    /// A list of objects, of texts, or one object; empty when absent.
    QVector<JsonReader> objects(const QString &field);
    QStringList texts(const QString &field);
    std::optional<JsonReader> object(const QString &field);

    /// One or several of them: a list, or the object or text itself; empty when absent.
    QVector<JsonReader> oneOrMoreObjects(const QString &field);
    QStringList oneOrMoreTexts(const QString &field);
    QVector<int> oneOrMoreNumbers(const QString &field);

    /// The value, whatever it is; undefined when absent.
    QJsonValue value(const QString &field) { return take(field); }

    /// The fields that nothing has asked for, to be read by somebody else.
    [[nodiscard]] JsonPlace rest() const;

    /// Adds an error about @p field: what is wrong with it and how to mend it.
    void addError(const QString &field, const QString &message);

    /// Adds an error for each field that nothing asked for: it is misspelt or does not belong here.
    void reportUnknownFields();

private:
    QJsonValue take(const QString &field);
    LocalText localTextOf(const QJsonValue &value, const QString &place);

    JsonPlace m_from;
    QStringList *m_errors;
    QSet<QString> m_asked;
};
