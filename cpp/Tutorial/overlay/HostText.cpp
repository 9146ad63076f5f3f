#include "Tutorial/overlay/HostText.h"

#include <QString>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextFormat>
#include <QTextTable>

#include <algorithm>

namespace {

// The layout of a table in a table takes twice as long with each level.
constexpr int kMostTables = 8;
// Qt's numbers of pixels run over at 2^25, and the layout of a table never ends then.
constexpr double kWidestMeasure = 1000000.0;
// Taking rich text apart takes longer with each tag that is open.
constexpr int kMostRichCharacters = 8000;
// Far more than any screen shows.
constexpr int kMostCharacters = 100000;

/// Takes rich text apart as a text edit does, without laying it out and without reading a file.
class Trial final : public QTextDocument
{
public:
    /// Whether the text that was set wants a file while it is taken apart or when it is laid out.
    [[nodiscard]] bool wantsFiles() const
    {
        return m_asked || hasFormat([](const QTextFormat &format) { return format.isImageFormat(); });
    }

    [[nodiscard]] bool hasMeasureBeyondReason() const
    {
        return hasFormat([](const QTextFormat &format) {
            const QMap<int, QVariant> properties = format.properties();
            return std::any_of(properties.cbegin(), properties.cend(), [](const QVariant &value) {
                return value.userType() == QMetaType::Double && !(qAbs(value.toDouble()) <= kWidestMeasure);
            });
        });
    }

    [[nodiscard]] int tables() const
    {
        int count = 0;
        QList<QTextFrame *> left{rootFrame()};
        while (!left.isEmpty()) {
            const QTextFrame *const frame = left.takeLast();
            left += frame->childFrames();
            count += qobject_cast<const QTextTable *>(frame) != nullptr ? 1 : 0;
        }
        return count;
    }

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        Q_UNUSED(type)
        Q_UNUSED(name)
        m_asked = true;
        return {};
    }

private:
    template<typename Predicate>
    [[nodiscard]] bool hasFormat(Predicate predicate) const
    {
        const QVector<QTextFormat> formats = allFormats();
        return std::any_of(formats.cbegin(), formats.cend(), predicate);
    }

    bool m_asked = false;
};

bool isHarmless(const QString &text)
{
    if (text.size() > kMostRichCharacters) {
        return false;
    }
    Trial trial;
    trial.setHtml(text);
    return !trial.wantsFiles() && !trial.hasMeasureBeyondReason() && trial.tables() <= kMostTables;
}

} // namespace

void setHostText(QTextEdit *edit, const QString &hostText)
{
    const QString text = hostText.left(kMostCharacters);
    if (Qt::mightBeRichText(text) && !isHarmless(text)) {
        edit->setPlainText(text);
    } else {
        edit->setText(text);
    }
}
