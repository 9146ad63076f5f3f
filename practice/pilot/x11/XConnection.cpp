#include "pilot/x11/XConnection.h"

#include <xcb/xtest.h>

std::unique_ptr<XConnection> XConnection::open(QString *error)
{
    // Even a connection that failed has to be closed.
    std::unique_ptr<XConnection> opened(new XConnection(xcb_connect(nullptr, nullptr)));
    if (xcb_connection_has_error(opened->get()) != 0) {
        *error = QStringLiteral("there is no X display to play on (DISPLAY is \"%1\")")
                     .arg(QString::fromLocal8Bit(qgetenv("DISPLAY")));
        return nullptr;
    }
    const xcb_query_extension_reply_t *const extension = xcb_get_extension_data(opened->get(), &xcb_test_id);
    if (extension == nullptr || extension->present == 0) {
        *error = QStringLiteral("the X display takes no made-up input: it has no XTEST extension");
        return nullptr;
    }
    opened->m_root = xcb_setup_roots_iterator(xcb_get_setup(opened->get())).data->root;
    return opened;
}

XConnection::XConnection(xcb_connection_t *connection)
    : m_connection(connection)
{
}

XConnection::~XConnection()
{
    xcb_disconnect(m_connection);
}

xcb_atom_t XConnection::atom(const QByteArray &name) const
{
    const xcb_intern_atom_cookie_t cookie =
        xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.constData());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply != nullptr ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

void XConnection::sync() const
{
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}
