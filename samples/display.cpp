#include "samples/display.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace samples {
namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Answer = std::unique_ptr<Reply, Free>;

}  // namespace

struct Display::Connection {
  explicit Connection(const QByteArray& name) : x(xcb_connect(name.constData(), nullptr)) {
    if (xcb_connection_has_error(x)) {
      xcb_disconnect(x);
      throw std::runtime_error("no display " + name.toStdString());
    }
    root = xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
    // Answers to a ping are sent to the root window, by some toolkits to those who watch the window itself, by others
    // to those who watch its children.
    const uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x, root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(x);
  }
  ~Connection() { xcb_disconnect(x); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  xcb_atom_t atom(const char* name) const {
    const auto cookie = xcb_intern_atom(x, 0, uint16_t(qstrlen(name)), name);
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
  }

  /** Empty where the window or the property is gone. */
  QByteArray property(xcb_window_t window, const char* name) const {
    const auto cookie = xcb_get_property(x, 0, window, atom(name), XCB_ATOM_ANY, 0, 4096);
    xcb_generic_error_t* failure = nullptr;
    const Answer<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, &failure));
    const Answer<xcb_generic_error_t> gone(failure);
    if (!reply) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
  }

  std::vector<xcb_window_t> windows(xcb_window_t of, const char* name) const {
    const QByteArray bytes = property(of, name);
    std::vector<xcb_window_t> list(size_t(bytes.size()) / sizeof(xcb_window_t));
    std::copy_n(bytes.constData(), list.size() * sizeof(xcb_window_t), reinterpret_cast<char*>(list.data()));
    return list;
  }

  QString title(xcb_window_t window) const {
    const QByteArray name = property(window, "_NET_WM_NAME");
    return QString::fromUtf8(name.isEmpty() ? property(window, "WM_NAME") : name).trimmed();
  }

  bool isMapped(xcb_window_t window) const {
    const Answer<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(x, xcb_get_window_attributes(x, window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
  }

  /** The titles of window and of all within it; a managed window lies within the manager's frame. */
  void collectTitles(xcb_window_t window, int depth, QStringList& into) const {
    const Answer<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(x, xcb_query_tree(x, window), nullptr));
    if (!tree || depth > 3) return;
    const xcb_window_t* const children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
      if (!isMapped(children[i])) continue;
      if (const QString name = title(children[i]); !name.isEmpty() && !into.contains(name)) into << name;
      collectTitles(children[i], depth + 1, into);
    }
  }

  xcb_connection_t* x;
  xcb_window_t root = 0;
};

Display::Display(const QString& name) : x_(std::make_unique<Connection>(name.toLatin1())) {}
Display::~Display() = default;

bool Display::isManaged() const {
  const auto sign = x_->windows(x_->root, "_NET_SUPPORTING_WM_CHECK");
  // The sign of a manager that ended stays on the root window; its window does not.
  return !sign.empty() && x_->windows(sign.front(), "_NET_SUPPORTING_WM_CHECK") == sign;
}

QString Display::titleInFront() const {
  const auto front = x_->windows(x_->root, "_NET_ACTIVE_WINDOW");
  return front.empty() || front.front() == 0 ? QString() : x_->title(front.front());
}

QStringList Display::titles() const {
  QStringList list;
  x_->collectTitles(x_->root, 0, list);
  return list;
}

bool Display::ping(quint32 token) const {
  const auto managed = x_->windows(x_->root, "_NET_CLIENT_LIST");
  if (managed.empty()) return false;
  const xcb_window_t window = managed.back();
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = x_->atom("WM_PROTOCOLS");
  event.data.data32[0] = x_->atom("_NET_WM_PING");
  event.data.data32[1] = token;  // meant for a time; it comes back as it went
  event.data.data32[2] = window;
  xcb_send_event(x_->x, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
  xcb_flush(x_->x);
  return true;
}

bool Display::answered(quint32 token) const {
  const xcb_atom_t asked = x_->atom("_NET_WM_PING");
  bool came = false;
  while (const Answer<xcb_generic_event_t> event{xcb_poll_for_event(x_->x)}) {
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) continue;
    const auto* const message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
    came = came || (message->window == x_->root && message->data.data32[0] == asked &&
                    message->data.data32[1] == token);
  }
  return came;
}

}  // namespace samples
