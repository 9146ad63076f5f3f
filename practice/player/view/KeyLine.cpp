#include "player/view/KeyLine.h"

#include <QHBoxLayout>
#include <QLabel>

namespace player {

KeyLine::KeyLine(QWidget *parent)
    : QWidget(parent)
{
    constexpr int kFontPixels = 12;
    setObjectName(QStringLiteral("keyLine"));
    QFont small = font();
    small.setPixelSize(kFontPixels);
    setFont(small);
    // A small window cuts it off rather than being kept large by it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 3, 8, 3);
    row->setSpacing(4);
    row->addStretch();
    //: Below a game, behind the arrow keys: what they do. There is room for some 20 letters.
    const QString walk = tr("Walk, choose");
    //: Below a game, behind the enter key: what it does. There is room for some 20 letters.
    const QString act = tr("Talk, confirm");
    //: Below a game, behind the X key: what it does. There is room for some 20 letters.
    const QString menu = tr("Menu, cancel");
    //: Below a game, behind the escape key: what it does. There is room for some 30 letters.
    const QString leave = tr("Cancel, to the editor");
    //: Below a game, behind the F5 key: what it does. There is room for some 20 letters.
    const QString anew = tr("Begin anew");
    add({QStringLiteral("←"), QStringLiteral("↑"), QStringLiteral("↓"), QStringLiteral("→")}, walk);
    add({QStringLiteral("Enter")}, act);
    add({QStringLiteral("X")}, menu);
    add({QStringLiteral("Esc")}, leave);
    add({QStringLiteral("F5")}, anew);
    row->addStretch();
}

void KeyLine::add(const QStringList &caps, const QString &meaning)
{
    auto *row = static_cast<QHBoxLayout *>(layout());
    for (const QString &cap : caps) {
        auto *key = new QLabel(cap, this);
        key->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
        key->setAutoFillBackground(true);
        key->setBackgroundRole(QPalette::Button);
        key->setForegroundRole(QPalette::ButtonText);
        key->setAlignment(Qt::AlignCenter);
        key->setContentsMargins(4, 0, 4, 0);
        row->addWidget(key);
    }
    row->addWidget(new QLabel(meaning, this));
    row->addSpacing(10);
}

} // namespace player
