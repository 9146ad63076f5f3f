#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

class ScenarioTexts;
class ScenarioDocument;
struct ItemTree;

/// What travels through the item clipboard: UTF-8 JSON, an array of items with all below them.
class ItemClipboard
{
public:
    ItemClipboard() = delete;

    /// The type of the clipboard's data, and its value while there is none.
    static QString mimeType();
    static QString emptyMimeType();

    /// The items of @p document with @p ids, in that order; an item inside a folder that is copied too comes
    /// twice. Nothing, and a warning in the log, when one of them does not exist.
    [[nodiscard]] static std::optional<QByteArray> copy(ItemTree *document, const QList<int> &ids);

    /// Adds the items of @p payload at the end of the top level of @p document, as steps of the undo history
    /// when a transaction is on. Returns the new ids of the items that are not inside another one, in order.
    /// Elements that cannot be read are left out; a payload that is no array gives nothing.
    static QList<int> paste(const QByteArray &payload, ScenarioDocument *document,
                            const ScenarioTexts &texts);
};
