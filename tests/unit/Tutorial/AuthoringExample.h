#pragma once

#include <QPoint>
#include <QString>

class QObject;

QString appendMovedCopy(QObject *manager, QObject *history, const QString &fileName, int id, QPoint offset);
