#pragma once

#include <QtGlobal>

#include <atomic>

// What Qt keeps for tools that watch a program: a function that is called with every QObject that comes, and
// one for every QObject that goes. The places have been the same since Qt 5.3.
QT_BEGIN_NAMESPACE
extern Q_CORE_EXPORT quintptr qtHookData[];
QT_END_NAMESPACE

/// Counts the QObjects that came and went while it lives. One at a time.
class LiveObjects
{
public:
    LiveObjects()
    {
        count() = 0;
        qtHookData[kAdd] = reinterpret_cast<quintptr>(static_cast<Hook>(&LiveObjects::add));
        qtHookData[kRemove] = reinterpret_cast<quintptr>(static_cast<Hook>(&LiveObjects::remove));
    }
    ~LiveObjects()
    {
        qtHookData[kAdd] = 0;
        qtHookData[kRemove] = 0;
    }
    Q_DISABLE_COPY(LiveObjects)

    /// How many more there are than at the start.
    [[nodiscard]] int more() const { return count(); }

private:
    using Hook = void (*)(QObject *);
    static constexpr int kAdd = 3;
    static constexpr int kRemove = 4;

    static std::atomic<int> &count()
    {
        static std::atomic<int> number{0};
        return number;
    }
    static void add(QObject * /*object*/) { ++count(); }
    static void remove(QObject * /*object*/) { --count(); }
};
