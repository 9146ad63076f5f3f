#include "Tutorial/localisation/SourceTextScanner.h"

#include "tool/JsonWrapper.h"
#include "tool/SourceArray.h"

#include <QCoreApplication>
#include <QVariant>

#include <utility>
#include <vector>

namespace {

// Where the reading goes on once nothing is left: behind a failure nothing is read any more.
constexpr int kNothingLeft = -1;

const QString &simpleOpening()
{
    static const QString marker = QStringLiteral("qsTr(\"");
    return marker;
}

const QString &contextOpening()
{
    static const QString marker = QStringLiteral("QT_TRANSLATE_NOOP(\"");
    return marker;
}

const QString &callClosing()
{
    static const QString marker = QStringLiteral("\")");
    return marker;
}

const QString &spacedSeparator()
{
    static const QString marker = QStringLiteral("\", \"");
    return marker;
}

const QString &tightSeparator()
{
    static const QString marker = QStringLiteral("\",\"");
    return marker;
}

const QString &argumentOpening()
{
    static const QString marker = QStringLiteral(".arg(");
    return marker;
}

/// Finds the next place of a marker for questions that only move forward, and looks at no character twice.
class ForwardFinder
{
public:
    ForwardFinder(const QString &text, const QString &marker)
        : m_text(text)
        , m_marker(marker)
    {
    }

    /// The first place at or behind @p from, or -1. @p from never decreases from call to call.
    int find(int from)
    {
        if (m_found != -1 && m_found < from) {
            m_found = m_text.indexOf(m_marker, from);
        }
        return m_found;
    }

private:
    const QString &m_text;
    const QString &m_marker;
    int m_found = -2; // nothing looked for yet
};

/// One pass over one text, from front to back.
class Pass
{
public:
    /// What was read as one value.
    struct Value
    {
        QString text;
        int end;             ///< Index of what stands behind the value, kNothingLeft after a failure.
        bool takesArguments; ///< True when a chain of arguments may follow.
    };

    Pass(const QString &text, const QString &context, const SourceTextScanner::Lookup &first,
         const SourceTextScanner::Lookup &second, QStringList *errors)
        : m_text(text)
        , m_context(context)
        , m_first(first)
        , m_second(second)
        , m_errors(errors)
        , m_spacedSeparators(text, spacedSeparator())
        , m_tightSeparators(text, tightSeparator())
    {
    }

    /// Reads the value at @p position. @p position never decreases from call to call.
    Value readValue(int position);

    /// The text with the value of each call that begins with @p opening in its place. The search for the next
    /// call begins @p gap characters behind a value.
    QString replaceCalls(const QString &opening, int gap);

private:
    Value readHead(int position);
    Value readPlainString(int position);
    Value readSimpleCall(int position);
    Value readContextCall(int position);
    [[nodiscard]] QString translated(const QString &context, const QString &quoted) const;

    [[nodiscard]] bool startsWith(const QString &marker, int position) const
    {
        return QStringView(m_text).mid(position).startsWith(marker);
    }
    [[nodiscard]] QString remainder(int position) const { return m_text.mid(position); }
    Value fail(const QString &failure, int position)
    {
        const QString left = remainder(position);
        m_errors->append(failure + left);
        return {left, kNothingLeft, false};
    }
    Value failUnmatched(int position)
    {
        return fail(QCoreApplication::translate("TutorialManager", "not matched %1...%2: ")
                        .arg(simpleOpening(), callClosing()),
                    position);
    }

    const QString &m_text;
    const QString &m_context;
    const SourceTextScanner::Lookup &m_first;
    const SourceTextScanner::Lookup &m_second;
    QStringList *m_errors;
    ForwardFinder m_spacedSeparators;
    ForwardFinder m_tightSeparators;
};

Pass::Value Pass::readValue(int position)
{
    // Arguments may hold calls with arguments of their own, to any depth: the calls that still wait for the
    // value of an argument stand here and not on the machine's stack.
    struct Waiting
    {
        QString text;
        int chain; // index of the ".arg(" whose value is being read
    };
    std::vector<Waiting> waiting;

    Value value = readHead(position);
    for (;;) {
        if (value.takesArguments && startsWith(argumentOpening(), value.end)) {
            waiting.push_back({value.text, value.end});
            value = readHead(value.end + argumentOpening().size());
            continue;
        }
        if (waiting.empty()) {
            return value;
        }
        const Waiting call = std::move(waiting.back());
        waiting.pop_back();
        const QString argument = value.text.mid(1, value.text.size() - 2); // without its quotes
        const QString text = call.text.arg(argument);
        const bool closed = value.end != kNothingLeft && startsWith(QStringLiteral(")"), value.end);
        if (closed) {
            value = {text, value.end + 1, true};
        } else {
            m_errors->append(
                QCoreApplication::translate("TutorialManager", "not closed %1: ").arg(argumentOpening()) +
                remainder(call.chain));
            value = {text, kNothingLeft, false};
        }
    }
}

Pass::Value Pass::readHead(int position)
{
    if (position >= m_text.size()) {
        return {QString(), kNothingLeft, false};
    }
    if (m_text.at(position) == QLatin1Char('"')) {
        return readPlainString(position);
    }
    if (startsWith(simpleOpening(), position)) {
        return readSimpleCall(position);
    }
    if (startsWith(contextOpening(), position)) {
        return readContextCall(position);
    }
    return fail(QCoreApplication::translate("TutorialManager", "unable to parse as string: "), position);
}

Pass::Value Pass::readPlainString(int position)
{
    for (int i = position + 1; i < m_text.size(); ++i) {
        if (m_text.at(i) == QLatin1Char('"') && m_text.at(i - 1) != QLatin1Char('\\')) {
            return {m_text.mid(position, i + 1 - position), i + 1, false};
        }
    }
    return fail(QCoreApplication::translate("TutorialManager", "unterminated \"...\": "), position);
}

Pass::Value Pass::readSimpleCall(int position)
{
    const int closing = m_text.indexOf(callClosing(), position + simpleOpening().size());
    if (closing == -1) {
        return failUnmatched(position);
    }
    const int quote = position + simpleOpening().size() - 1;
    const QString quoted = m_text.mid(quote, closing + 1 - quote);
    return {translated(m_context, quoted), closing + int(callClosing().size()), true};
}

Pass::Value Pass::readContextCall(int position)
{
    // The closing pair is looked for from the length of the shorter opening on, so an empty call closes with
    // the quote that opens it.
    const int closing = m_text.indexOf(callClosing(), position + simpleOpening().size());
    if (closing == -1) {
        return failUnmatched(position);
    }
    const int begin = position + contextOpening().size();
    int separator = m_spacedSeparators.find(begin);
    int separatorLength = spacedSeparator().size();
    if (separator == -1) {
        separator = m_tightSeparators.find(begin);
        separatorLength = tightSeparator().size();
    }
    if (separator == -1) {
        return fail(QCoreApplication::translate("TutorialManager", "not found %1 or %2: ")
                        .arg(spacedSeparator(), tightSeparator()),
                    position);
    }
    const QString context = m_text.mid(begin, separator - begin);
    // A separator that stands behind the closing pair gives a length below zero, which reaches to the end.
    const int source = separator + separatorLength;
    const QString quoted = QStringLiteral("\"%1\"").arg(m_text.mid(source, closing - source));
    return {translated(context, quoted), closing + int(callClosing().size()), true};
}

QString Pass::translated(const QString &context, const QString &quoted) const
{
    const QString text = JsonWrapper(quoted).toString();
    QString translation = m_first(context, text);
    if (translation == text && translation.startsWith(QLatin1Char('#'))) {
        const QString second = m_second(context, text);
        if (!second.isEmpty()) {
            translation = second;
        }
    }
    return JsonWrapper::getJsonString(translation);
}

QString Pass::replaceCalls(const QString &opening, int gap)
{
    int call = m_text.indexOf(opening);
    if (call == -1) {
        return m_text;
    }
    QString result;
    result.reserve(m_text.size());
    int copied = 0;
    while (call != -1) {
        const Value value = readValue(call);
        result.append(m_text.constData() + copied, call - copied);
        result += value.text;
        if (value.end == kNothingLeft) {
            return result;
        }
        copied = value.end;
        call = m_text.indexOf(opening, copied + gap);
    }
    result.append(m_text.constData() + copied, m_text.size() - copied);
    return result;
}

} // namespace

SourceTextScanner::SourceTextScanner(Lookup first, Lookup second)
    : m_first(std::move(first))
    , m_second(std::move(second))
{
}

QString SourceTextScanner::parseTranslatable(const QString &text, const QString &context, QString *rest,
                                             QStringList *errors) const
{
    const Pass::Value value = Pass(text, context, m_first, m_second, errors).readValue(0);
    *rest = value.end == kNothingLeft ? QString() : text.mid(value.end);
    return value.text;
}

QString SourceTextScanner::translateScript(const QString &text, const QString &context,
                                           QStringList *errors) const
{
    const QString simpleDone =
        Pass(text, context, m_first, m_second, errors).replaceCalls(simpleOpening(), 0);
    QString script = Pass(simpleDone, context, m_first, m_second, errors).replaceCalls(contextOpening(), 0);
    int length = script.size();
    while (length > 0 && script.at(length - 1) == QLatin1Char('\n')) {
        --length;
    }
    script.truncate(length);
    return script;
}

QString SourceTextScanner::translateList(const QString &text, const QString &context,
                                         QStringList *errors) const
{
    const QString list = sourceArray(text, QLatin1String("list"));
    // Behind an entry's text stands at least the quote and the brace that end it.
    constexpr int kGap = 2;
    return Pass(list, context, m_first, m_second, errors).replaceCalls(simpleOpening(), kGap);
}
