#include "platform/desktop/tray_watch.h"

#include <xcb/xcb.h>
#include <xcb/xfixes.h>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace klarvik {
namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype([](Reply* reply) { std::free(reply); })>;

}  // namespace

xcb_connection_t* x11Connection() {
  const auto* display = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // A program that draws to no screen may offer the interface all the same.
  return display != nullptr ? display->connection() : nullptr;
}

std::uint32_t x11Selection(xcb_connection_t* connection, std::string_view name) {
  const auto question =
      xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Owned<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(connection, question, nullptr));
  return answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool isOwned(xcb_connection_t* connection, std::uint32_t selection) {
  const auto question = xcb_get_selection_owner(connection, selection);
  const Owned<xcb_get_selection_owner_reply_t> answer(
      xcb_get_selection_owner_reply(connection, question, nullptr));
  return answer && answer->owner != XCB_NONE;
}

namespace {

// A tray owns the selection of this name. The number is the screen's; a display has one.
constexpr std::string_view selectionName = "_NET_SYSTEM_TRAY_S0";

void askToBeTold(xcb_connection_t* connection, xcb_atom_t selection) {
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  xcb_xfixes_select_selection_input(connection, root, selection,
                                    XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                        XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                        XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

}  // namespace

std::unique_ptr<X11TrayWatch> X11TrayWatch::onThisDisplay(std::function<void()> changed) {
  xcb_connection_t* const connection = x11Connection();
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
      _selection(x11Selection(connection, selectionName)) {
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

namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher";
constexpr auto path = "/StatusNotifierWatcher";

/// Connecting where no bus runs would make the bus library start one.
bool hasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

}  // namespace

TrayWatch::TrayWatch(std::function<void()> changed)
    : _changed(std::move(changed)), _x11Tray(X11TrayWatch::onThisDisplay([this] { update(); })) {
  _isPresent = _x11Tray && _x11Tray->hasTray();
  if (hasSessionBus()) followBus();
}

void TrayWatch::followBus() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  _notifierWatcher.setConnection(bus);
  _notifierWatcher.addWatchedService(service);
  connect(&_notifierWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          &TrayWatch::askForHost);
  for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
    bus.connect(service, path, service, signal, this, SLOT(askForHost()));
  }
  askForHost();
}

void TrayWatch::askForHost() {
  auto question =
      QDBusMessage::createMethodCall(service, path, "org.freedesktop.DBus.Properties", "Get");
  question << service << QStringLiteral("IsStatusNotifierHostRegistered");
  question.setAutoStartService(false);
  auto* answer =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    setHasHost(reply.isValid() && reply.value().variant().toBool());
    answer->deleteLater();
  });
}

void TrayWatch::setHasHost(bool hasHost) {
  _hasHost = hasHost;
  update();
}

void TrayWatch::update() {
  const bool isPresent = _hasHost || (_x11Tray && _x11Tray->hasTray());
  if (isPresent == _isPresent) return;
  _isPresent = isPresent;
  _changed();
}

}  // namespace klarvik
