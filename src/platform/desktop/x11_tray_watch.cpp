#include "platform/desktop/x11_tray_watch.h"

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <QGuiApplication>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace klarvik {
namespace {

// A tray owns the selection of this name. The number is the screen's; a display has one.
constexpr std::string_view selectionName = "_NET_SYSTEM_TRAY_S0";

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype([](Reply* reply) { std::free(reply); })>;

xcb_atom_t selectionOf(xcb_connection_t* connection) {
  const auto question = xcb_intern_atom(connection, 0, selectionName.size(), selectionName.data());
  const Owned<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(connection, question, nullptr));
  return answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool isOwned(xcb_connection_t* connection, xcb_atom_t selection) {
  const auto question = xcb_get_selection_owner(connection, selection);
  const Owned<xcb_get_selection_owner_reply_t> answer(
      xcb_get_selection_owner_reply(connection, question, nullptr));
  return answer && answer->owner != XCB_NONE;
}

void askToBeTold(xcb_connection_t* connection, xcb_atom_t selection) {
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  xcb_xfixes_select_selection_input(connection, root, selection,
                                    XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                        XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                        XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

}  // namespace

std::unique_ptr<X11TrayWatch> X11TrayWatch::onThisDisplay(std::function<void()> changed) {
  const auto* display = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* connection = display != nullptr ? display->connection() : nullptr;
  // A program that draws to no screen may offer the interface all the same.
  if (connection == nullptr) return nullptr;
  const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
  if (extension == nullptr || extension->present == 0) return nullptr;
  const auto event =
      static_cast<std::uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY);
  return std::unique_ptr<X11TrayWatch>(new X11TrayWatch(connection, event, std::move(changed)));
}

X11TrayWatch::X11TrayWatch(xcb_connection_t* connection, std::uint8_t selectionEvent,
                           std::function<void()> changed)
    : _changed(std::move(changed)),
      _selectionEvent(selectionEvent),
      _selection(selectionOf(connection)) {
  askToBeTold(connection, _selection);
  _hasTray = isOwned(connection, _selection);
  qGuiApp->installNativeEventFilter(this);
}

X11TrayWatch::~X11TrayWatch() {
  if (qGuiApp != nullptr) qGuiApp->removeNativeEventFilter(this);
}

bool X11TrayWatch::nativeEventFilter(const QByteArray& eventType, void* message,
                                     qintptr* /*result*/) {
  if (eventType != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  if ((event->response_type & 0x7F) != _selectionEvent) return false;
  const auto* change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
  if (change->selection != _selection) return false;
  _hasTray = change->owner != XCB_NONE;
  _changed();
  return false;
}

}  // namespace klarvik
