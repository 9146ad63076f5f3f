#include "window/control/ControlReader.h"

#include <QAbstractButton>
#include <QCursor>

ControlReader::ControlReader(const ControlDescription *description, const ControlContext *context,
                             QStringList *errors)
    : m_description(description)
    , m_context(context)
    , m_json(description->own, errors)
{
}

QString ControlReader::label()
{
    require(QStringLiteral("label"), !m_description->label.isEmpty());
    return m_description->label.value(m_context->locale);
}

QString ControlReader::field()
{
    QString name = m_json.text(QStringLiteral("field"));
    const QString problem = m_context->project->fields().problemOf(name);
    if (!name.isEmpty() && !problem.isEmpty()) {
        m_json.addError(QStringLiteral("field"), problem);
    }
    return name;
}

QString ControlReader::source()
{
    QString name = m_json.text(QStringLiteral("source"));
    const QString problem = m_context->project->sources().problemOf(name);
    if (!name.isEmpty() && !problem.isEmpty()) {
        m_json.addError(QStringLiteral("source"), problem);
    }
    return name;
}

int ControlReader::rowHeight()
{
    require(QStringLiteral("rowHeight"), m_description->rowHeight != 0);
    return m_description->rowHeight;
}

int ControlReader::tabWidth()
{
    require(QStringLiteral("tabWidth"), m_description->tabWidth != 0);
    return m_description->tabWidth;
}

void ControlReader::readAction()
{
    require(QStringLiteral("action"), !m_description->actionName.isEmpty());
}

void ControlReader::oneOf(const QString &field, const QString &value, const QStringList &allowed)
{
    if (!value.isEmpty() && !allowed.contains(value)) {
        m_json.addError(field, QStringLiteral("\"%1\" is unknown; use one of: %2")
                                   .arg(value, allowed.join(QStringLiteral(", "))));
    }
}

void ControlReader::finish()
{
    const QVector<QPair<QString, bool>> shared{
        {QStringLiteral("label"), !m_description->label.isEmpty()},
        {QStringLiteral("rowHeight"), m_description->rowHeight != 0},
        {QStringLiteral("tabWidth"), m_description->tabWidth != 0},
        {QStringLiteral("action"), !m_description->actionName.isEmpty()}};
    for (const auto &[field, isThere] : shared) {
        if (isThere && !m_taken.contains(field)) {
            m_json.addError(field,
                            QStringLiteral("is no field of a control of this type; remove it or correct its "
                                           "name"));
        }
    }
    m_json.reportUnknownFields();
}

void ControlReader::require(const QString &field, bool isThere)
{
    m_taken.append(field);
    if (!isThere) {
        m_json.addError(field, QStringLiteral("is missing; controls of this type need it"));
    }
}

void wireClick(QAbstractButton *button, const ControlDescription &description, EditorWindow *window)
{
    QObject::connect(button, &QAbstractButton::clicked, window, [description, window] {
        window->act(description.click, QCursor::pos());
        if (!description.actionName.isEmpty()) {
            window->report(QStringLiteral("action"), description.actionName, description.actionState);
        }
    });
}
