#pragma once

#include "Tutorial/localisation/TranslateText.h"

#include <QList>
#include <QString>
#include <QStringList>

class JsonWrapper;

// Each translator walks the JSON in `wrapper` in index order and replaces the texts that its name tells of. A
// text is replaced when it is not empty and its translation is neither empty nor equal to it; null values are
// skipped. A shape that the translator does not expect is logged as a warning and ends its walk: what it
// changed so far stays.

/// `wrapper[key]`
void translateKeyText(const TranslateText &translate, const QString &context, const QString &key,
                      JsonWrapper &wrapper);
/// `wrapper[index][key]`, for each index
void translateArrayKeyText(const TranslateText &translate, const QString &context, const QString &key,
                           JsonWrapper &wrapper);
/// `wrapper[key][index]`, for each index
void translateKeyArrayText(const TranslateText &translate, const QString &context, const QString &key,
                           JsonWrapper &wrapper);
/// `wrapper[key1][key2][index]`, for each index
void translateKeyKeyArrayText(const TranslateText &translate, const QString &context, const QString &key1,
                              const QString &key2, JsonWrapper &wrapper);
/// `wrapper[key1][key2][key]`, for each key there is
void translateKeyKeyAnyKeyText(const TranslateText &translate, const QString &context, const QString &key1,
                               const QString &key2, JsonWrapper &wrapper);
/// The names of a map's events and the texts of their pages.
void translateMapEvent(const TranslateText &translate, const QString &context, JsonWrapper &wrapper);
/// The texts of event commands. `wrapper` is an array of things that hold a "list" of commands. Here each
/// string at a place of text is handed to `translate`, and the result is written whatever it is.
void translateEvent(const TranslateText &translate, const QString &context, JsonWrapper &wrapper);
/// The common events are event command lists too.
inline void translateCommonEvent(const TranslateText &translate, const QString &context, JsonWrapper &wrapper)
{
    translateEvent(translate, context, wrapper);
}

/// Runs those of @p rows that have the filter word "tutorial" on @p wrapper, in order. A row with an unknown
/// translator is passed over.
void runSampleRows(const QList<QStringList> &rows, const TranslateText &translate, JsonWrapper &wrapper);
