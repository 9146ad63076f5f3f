#include "pilot/x11/XEye.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QPixmap>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// Small enough, and fast: Qt takes 0 to 100 from smallest to uncompressed.
constexpr int kFastPng = 75;

/// The editor's window that a click at @p spot reaches, as the X server has it: nullptr while a window is
/// still to be mapped, or another program's is above, or a dialog keeps the click from it.
QWindow *editorWindowAt(const QPoint &spot)
{
    QWindow *const window = QGuiApplication::topLevelAt(spot);
    QWindow *const modal = QGuiApplication::modalWindow();
    const bool isBlocked = modal != nullptr && window != modal && window == modal->transientParent();
    return isBlocked ? nullptr : window;
}

/// What is asked of one window. All windows are asked before the first answer is waited for.
struct Questions
{
    xcb_window_t window;
    xcb_query_tree_cookie_t tree;
    xcb_get_property_cookie_t pid;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t corner;
};

/// What it answers.
struct Answers
{
    Answers(xcb_connection_t *c, const Questions &asked)
        : tree(xcb_query_tree_reply(c, asked.tree, nullptr))
        , pid(xcb_get_property_reply(c, asked.pid, nullptr))
        , geometry(xcb_get_geometry_reply(c, asked.geometry, nullptr))
        , corner(xcb_translate_coordinates_reply(c, asked.corner, nullptr))
    {
    }

    [[nodiscard]] bool areComplete() const
    {
        return tree != nullptr && pid != nullptr && geometry != nullptr && corner != nullptr;
    }

    /// Of the process that has the window; 0 when the window does not tell.
    [[nodiscard]] quint32 processId() const
    {
        const bool isTold = pid->format == 32 && xcb_get_property_value_length(pid.get()) == sizeof(quint32);
        return isTold ? *static_cast<const quint32 *>(xcb_get_property_value(pid.get())) : 0;
    }

    [[nodiscard]] QRect rect() const
    {
        return {corner->dst_x, corner->dst_y, geometry->width, geometry->height};
    }

    XReply<xcb_query_tree_reply_t> tree;
    XReply<xcb_get_property_reply_t> pid;
    XReply<xcb_get_geometry_reply_t> geometry;
    XReply<xcb_translate_coordinates_reply_t> corner;
};

} // namespace

XEye::XEye(std::shared_ptr<const XConnection> x)
    : m_x(std::move(x))
    , m_pidAtom(m_x->atom("_NET_WM_PID"))
    , m_heard(std::make_unique<Ear>())
{
}

XEye::Ear::Ear()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool XEye::Ear::eventFilter(QObject *watched, QEvent *event)
{
    // A window passes on what it gets to the widgets in it.
    if (event->type() == QEvent::MouseButtonRelease && qobject_cast<QWindow *>(watched) != nullptr) {
        ++clicks;
    }
    return false;
}

std::optional<SeenOverlays> XEye::overlays()
{
    QVector<SeenOverlays::Window> found;
    Ids level{m_x->root()};
    while (!level.isEmpty()) {
        const std::optional<Ids> shown = viewable(level);
        const std::optional<Ids> below = shown ? look(*shown, &found) : std::nullopt;
        if (!below) {
            return {};
        }
        level = *below;
    }
    return SeenOverlays::among(found);
}

std::optional<XEye::Ids> XEye::viewable(const Ids &windows) const
{
    std::vector<std::pair<xcb_window_t, xcb_get_window_attributes_cookie_t>> asked;
    asked.reserve(static_cast<std::size_t>(windows.size()));
    for (const xcb_window_t window : windows) {
        asked.emplace_back(window, xcb_get_window_attributes(m_x->get(), window));
    }
    bool isComplete = true;
    Ids shown;
    for (const auto &[window, question] : asked) {
        const XReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(m_x->get(), question, nullptr));
        isComplete = isComplete && attributes != nullptr;
        if (attributes != nullptr && attributes->map_state == XCB_MAP_STATE_VIEWABLE) {
            shown.append(window);
        }
    }
    return isComplete ? std::optional<Ids>(shown) : std::nullopt;
}

std::optional<XEye::Ids> XEye::look(const Ids &windows, QVector<SeenOverlays::Window> *found) const
{
    xcb_connection_t *const c = m_x->get();
    std::vector<Questions> asked;
    asked.reserve(static_cast<std::size_t>(windows.size()));
    for (const xcb_window_t window : windows) {
        asked.push_back({window, xcb_query_tree(c, window),
                         xcb_get_property(c, 0, window, m_pidAtom, XCB_ATOM_CARDINAL, 0, 1),
                         xcb_get_geometry(c, window),
                         xcb_translate_coordinates(c, window, m_x->root(), 0, 0)});
    }
    bool isComplete = true;
    Ids below;
    for (const Questions &questions : asked) {
        // Every answer is fetched, also when one before it did not come: it would wait for ever.
        const Answers answers(c, questions);
        if (!answers.areComplete()) {
            isComplete = false;
            continue;
        }
        std::copy_n(xcb_query_tree_children(answers.tree.get()),
                    xcb_query_tree_children_length(answers.tree.get()), std::back_inserter(below));
        if (answers.processId() == m_pid) {
            found->append({answers.rect(), questions.window});
        }
    }
    return isComplete ? std::optional<Ids>(below) : std::nullopt;
}

bool XEye::takesClickAt(const QPoint &spot)
{
    return editorWindowAt(spot) != nullptr;
}

bool XEye::takesPressAt(quint32 window, const QPoint &place)
{
    xcb_window_t from = window;
    xcb_window_t at = m_x->root();
    QPoint spot = place;
    // Down from the screen to what lies lowest in the tree: a window manager may have put a frame around it.
    while (at != XCB_NONE) {
        const XReply<xcb_translate_coordinates_reply_t> reply(xcb_translate_coordinates_reply(
            m_x->get(),
            xcb_translate_coordinates(m_x->get(), from, at, static_cast<int16_t>(spot.x()),
                                      static_cast<int16_t>(spot.y())),
            nullptr));
        if (reply == nullptr || at == window) {
            return reply != nullptr;
        }
        spot = {reply->dst_x, reply->dst_y};
        from = at;
        at = reply->child;
    }
    return false;
}

bool XEye::takesKeysAt(const QPoint &spot)
{
    QWindow *const window = editorWindowAt(spot);
    return window != nullptr && QGuiApplication::focusWindow() == window;
}

bool XEye::seesList()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWindow *window) {
        return window->isVisible() && window->type() == Qt::Popup;
    });
}

QStringList XEye::listRows()
{
    const QWidget *const popup = QApplication::activePopupWidget();
    const auto *const list = popup != nullptr ? popup->findChild<QAbstractItemView *>() : nullptr;
    QStringList rows;
    if (list != nullptr && list->model() != nullptr) {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            rows.append(list->model()->index(row, 0).data().toString());
        }
    }
    return rows;
}

QString XEye::windows()
{
    QStringList titles;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow *const window : windows) {
        if (!window->isVisible()) {
            continue;
        }
        const bool isMenu = window->type() == Qt::Popup;
        const QString title =
            isMenu ? QStringLiteral("a menu") : QStringLiteral("\"%1\"").arg(window->title());
        if (isMenu || window == QGuiApplication::focusWindow()) {
            titles.prepend(title);
        } else if (!window->title().isEmpty()) {
            titles.append(title);
        }
    }
    return titles.join(QStringLiteral(", "));
}

bool XEye::takePicture(const QString &path)
{
    // Window 0 is all screens as the person sees them, the companion's windows included.
    QScreen *const screen = QGuiApplication::primaryScreen();
    const QRect all = screen->virtualGeometry().translated(-screen->geometry().topLeft());
    return screen->grabWindow(0, all.x(), all.y(), all.width(), all.height()).save(path, "PNG", kFastPng);
}
