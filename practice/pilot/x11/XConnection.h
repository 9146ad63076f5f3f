#pragma once

#include <QByteArray>
#include <QString>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};

/// What the X server answered; nullptr when it answered with an error.
template<typename Reply>
using XReply = std::unique_ptr<Reply, FreeReply>;

/// A connection of the pilot's own to the X server of the environment, beside that of the toolkit.
///
/// Whatever asks something through it waits for the server's answer: a fraction of a millisecond, unless some
/// other program has the server for itself.
class XConnection
{
public:
    /// nullptr, with a sentence in @p error, when there is no server or it takes no made-up input.
    [[nodiscard]] static std::unique_ptr<XConnection> open(QString *error);
    ~XConnection();

    XConnection(const XConnection &) = delete;
    XConnection &operator=(const XConnection &) = delete;
    XConnection(XConnection &&) = delete;
    XConnection &operator=(XConnection &&) = delete;

    [[nodiscard]] xcb_connection_t *get() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    /// The atom with this name; made when there is none yet.
    [[nodiscard]] xcb_atom_t atom(const QByteArray &name) const;
    /// Comes back when the server has done all that was asked of it.
    void sync() const;

private:
    explicit XConnection(xcb_connection_t *connection);

    xcb_connection_t *m_connection;
    xcb_window_t m_root = XCB_NONE;
};
