#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// Resolves the translation calls in JavaScript-like source text, so that what is left can be read as JSON:
/// `"hint":qsTr("#1")` becomes `"hint":"the text"`. Besides `qsTr("...")` it knows
/// `QT_TRANSLATE_NOOP("context", "...")` and, behind either, a chain of `.arg(value)`, whose values are plain
/// strings or calls again.
///
/// Nothing stops at a failure: its text goes to the error list, and what could not be read is left behind
/// (or, behind an argument that is not closed, dropped). Run time is linear in the length of the text, save
/// that each argument of a chain goes through the text that it is put into once more.
class SourceTextScanner
{
public:
    /// Gives the translation of a text in a context.
    using Lookup = std::function<QString(const QString &context, const QString &text)>;

    /// @p first gives a text back that it does not know. @p second is asked about the text identifiers
    /// ("#1") that @p first gave back; an empty answer leaves the identifier as it is.
    SourceTextScanner(Lookup first, Lookup second);

    /// Reads the one value, a string or a call, at the start of @p text and returns it as a quoted JSON
    /// string. @p context is that of qsTr. @p rest receives what stands behind the value; it is empty after
    /// a failure, whose text, with what could not be read behind it, is appended to @p errors.
    QString parseTranslatable(const QString &text, const QString &context, QString *rest,
                              QStringList *errors) const;

    /// @p text with every call replaced by its value, first those of qsTr, then those with a context of their
    /// own, and without the line feeds at its end.
    QString translateScript(const QString &text, const QString &context, QStringList *errors) const;

    /// The list of scenarios in @p text, `var list = [...];`, as a JSON array with its qsTr calls resolved.
    QString translateList(const QString &text, const QString &context, QStringList *errors) const;

private:
    Lookup m_first;
    Lookup m_second;
};
