#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// Says where the data files of a game project hold text that learners see. The key, read as a regular
/// expression between "^" and "$", matches the names of data files. Each row names a translator function, the
/// row's filter word, the translation context, and the keys that the translator needs. Rows run in their
/// order.
using SampleTable = QHash<QString, QList<QStringList>>;

[[nodiscard]] SampleTable buildSampleTable();
