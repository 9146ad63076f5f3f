#include "player/view/LogPane.h"

#include "player/game/GameData.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace player {

namespace {

QString said(const char *text)
{
    return QCoreApplication::translate("player::LogPane", text);
}

/// "Name", or "Event 3" where it has none.
QString called(const QString &name, const char *kind, int number)
{
    return name.isEmpty() ? said(kind).arg(number) : name;
}

QString nameOfEvent(const Problem &problem, const GameData &data)
{
    if (problem.file == QLatin1String("data/Troops.json")) {
        return called(data.troops.name(problem.event), QT_TRANSLATE_NOOP("player::LogPane", "Troop %1"),
                      problem.event);
    }
    if (problem.file == QLatin1String("data/CommonEvents.json")) {
        return called(data.commonEvents.name(problem.event),
                      QT_TRANSLATE_NOOP("player::LogPane", "Common event %1"), problem.event);
    }
    const MapData *const map = data.maps.find(problem.map);
    const MapEvent *const event = map != nullptr ? map->event(problem.event) : nullptr;
    return called(event != nullptr ? event->name : QString(),
                  QT_TRANSLATE_NOOP("player::LogPane", "Event %1"), problem.event);
}

} // namespace

QString placeInWords(const Problem &problem, const GameData &data)
{
    QStringList words;
    if (problem.map > 0) {
        words.append(
            called(data.maps.name(problem.map), QT_TRANSLATE_NOOP("player::LogPane", "Map %1"), problem.map));
    }
    if (problem.event > 0) {
        words.append(nameOfEvent(problem, data));
    }
    if (problem.page > 0) {
        words.append(said(QT_TRANSLATE_NOOP("player::LogPane", "page %1")).arg(problem.page));
    }
    if (problem.line > 0) {
        words.append(said(QT_TRANSLATE_NOOP("player::LogPane", "line %1")).arg(problem.line));
    }
    return words.join(QStringLiteral(" › "));
}

LogPane::LogPane(const GameData *gameData, QWidget *parent)
    : QWidget(parent)
    , m_data(gameData)
    , m_heading(new QLabel(this))
    , m_list(new QListWidget(this))
{
    constexpr int kShownRows = 4;
    setObjectName(QStringLiteral("logPane"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 2, 6, 6);
    column->setSpacing(2);
    column->addWidget(m_heading);
    column->addWidget(m_list);
    setReached(true);
    m_heading->setWordWrap(true);
    m_heading->setBuddy(m_list);
    m_list->setObjectName(QStringLiteral("problems"));
    m_list->setAccessibleName(m_heading->text());
    m_list->setFixedHeight(fontMetrics().lineSpacing() * kShownRows + 2 * m_list->frameWidth() + 6);
    m_list->setTextElideMode(Qt::ElideRight);
    connect(m_list, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        if (const int row = m_list->row(item); row >= 0 && row < m_problems.size()) {
            Q_EMIT placeAsked(m_problems.at(row));
        }
    });
    hide();
}

void LogPane::add(const QVector<Problem> &problems)
{
    for (const Problem &problem : problems) {
        if (m_problems.size() >= kMostRows && !m_problems.contains(problem)) {
            continue;
        }
        if (problem.addTo(&m_problems)) {
            m_list->addItem(QString());
        }
        write(int(m_problems.indexOf(problem)));
    }
    if (!m_problems.isEmpty()) {
        show();
    }
}

void LogPane::setReached(bool isReached)
{
    m_heading->setText(
        isReached ? tr("What the game cannot do. A double click, or Enter, leads to the place in the editor.")
                  : tr("Close the open windows of the editor first: they lie before that place."));
}

void LogPane::write(int row)
{
    constexpr int kMostCounted = 9999;
    const Problem &problem = m_problems.at(row);
    const QString place = placeInWords(problem, *m_data);
    QString text = place.isEmpty() ? problem.text : place + QStringLiteral(": ") + problem.text;
    if (problem.times > kMostCounted) {
        text.prepend(QStringLiteral("(×%1+) ").arg(kMostCounted));
    } else if (problem.times > 1) {
        text.prepend(QStringLiteral("(×%1) ").arg(problem.times));
    }
    QListWidgetItem *const item = m_list->item(row);
    if (item->text() != text) {
        item->setText(text);
        item->setToolTip(text);
    }
}

} // namespace player
