#include "PracticeTranslator.h"

#include <QCoreApplication>

PracticeTranslator::PracticeTranslator(const QString &locale)
{
    Q_INIT_RESOURCE(practice_texts); // a library's bundle, which nothing else refers to
    if (load(QStringLiteral(":/practice/translations/%1.qm").arg(locale))) {
        QCoreApplication::installTranslator(this);
    }
}
