#pragma once

#include <QJsonObject>
#include <QMap>
#include <QStringList>

#include <functional>

/// What the editor keeps beside the data files and the layers above them, such as the tool in the hand, as
/// JSON. Each part registers itself in one line.
class StateParts
{
public:
    using Save = std::function<QJsonValue()>;
    /// Takes what Save gave; anything else leaves all as it is.
    using Load = std::function<void(const QJsonValue &)>;

    void add(const QString &name, Save save, Load load);
    /// A part with what was copied last: to paste then means something else.
    void addCopied(const QString &name, Save save, Load load);

    [[nodiscard]] QJsonObject save() const;
    /// Of the parts with what was copied.
    [[nodiscard]] QJsonObject saveCopied() const;
    void load(const QJsonObject &parts) const;

private:
    struct Part
    {
        Save save;
        Load load;
    };

    QMap<QString, Part> m_parts;
    QStringList m_copied;
};
