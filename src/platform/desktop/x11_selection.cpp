#include "platform/desktop/x11_selection.h"

#include <xcb/xcb.h>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>

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

}  // namespace klarvik
