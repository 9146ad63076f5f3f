#pragma once

#include <QObject>

/// Lets the menu key, and shift with F10, do in the editor's windows what a right click on the current row or
/// cell does. Text fields keep menus of their own.
class MenuKey : public QObject
{
    Q_OBJECT

public:
    explicit MenuKey(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
