#pragma once

#include <QLatin1String>
#include <QString>
#include <QVariant>

#include <array>
#include <variant>

class JsonWrapper;

/// What a step holds beside its id and its name; a folder has the same fields and keeps one of them in files.
/// x and y are pixels relative to the window of windowKey; -9999 in both points at nothing.
struct ItemValues
{
    /// Every field has the start value of its row in the table.
    ItemValues();

    int translationId;
    int x;
    int y;
    QString windowKey;
    QString condition;
    QString hint;
    QString hint2;
    QString icon;
    int jump;
    int jumpNo;
    QString command;
    bool showArrow;
    bool prohibited;
};

/// One row of the table of fields: what a field is called, where it stands, and how it begins.
struct ItemField
{
    template<typename Value, typename Start>
    struct Slot
    {
        Value ItemValues::*member;
        Start start;
    };
    using Number = Slot<int, int>;
    using Text = Slot<QString, QLatin1String>;
    using Flag = Slot<bool, bool>;

    [[nodiscard]] QVariant value(const ItemValues &values) const;
    /// A value of another kind is converted as QVariant does it.
    void setValue(ItemValues *values, const QVariant &value) const;
    void setToStart(ItemValues *values) const;
    /// A value of another kind is converted as JsonWrapper does it.
    void read(const JsonWrapper &json, ItemValues *values) const;
    [[nodiscard]] bool is(QString ItemValues::*member) const;

    const char *key; // in files, in the clipboard, and as the target of a change
    std::variant<Number, Text, Flag> slot;
    const char *formerKey = nullptr; // read where the key is missing
    bool inFolders = false;          // read for folders too
};

using ItemFields = std::array<ItemField, 13>;

/// All fields, in the order in which they are read and written.
[[nodiscard]] const ItemFields &itemFields();
/// The field with this key, or null.
[[nodiscard]] const ItemField *findItemField(const QString &key);
