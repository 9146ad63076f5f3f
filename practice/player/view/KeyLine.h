#pragma once

#include <QWidget>

namespace player {

/// The line below a game that says which key does what.
class KeyLine : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLine(QWidget *parent = nullptr);

private:
    /// Adds keys with what they do, from left to right.
    void add(const QStringList &caps, const QString &meaning);
};

} // namespace player
