#include "platform/desktop/xdg_login_item.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <fstream>
#include <utility>

#include "base/file_writes.h"
#include "base/text.h"
#include "platform/desktop_entry.h"

namespace klarvik {
namespace {

// More than any entry needs.
constexpr std::streamsize longestEntry = 64 * 1024;
constexpr ::mode_t readableByAll = 0644;

/// The characters of an argument between double quotes that need a backslash in front.
constexpr std::string_view quotedSpecials = "\"`$\\";

std::string asQuotedArgument(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (quotedSpecials.find(character) != std::string_view::npos) quoted += '\\';
    if (character == '%') quoted += '%';
    quoted += character;
  }
  return quoted + '"';
}

std::string asEntryText(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '\\':
        escaped += "\\\\";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\r':
        escaped += "\\r";
        break;
      case '\t':
        escaped += "\\t";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

/// `TryExec` lets a login pass over an entry whose program has been uninstalled.
std::string autostartText(const Path& program, const std::string& command) {
  return std::string(desktopEntryGroup) +
         "\n"
         "Type=Application\n"
         "Name=Klarvik\n"
         "Comment=Sees what fills the disk, and takes the space back\n"
         "TryExec=" +
         asEntryText(program.native()) +
         "\n"
         "Exec=" +
         command +
         "\n"
         "Terminal=false\n"
         "X-GNOME-Autostart-enabled=true\n";
}

std::string contentOf(const Path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return {};
  std::string content(longestEntry, '\0');
  std::ifstream stream(file, std::ios::binary);
  stream.read(content.data(), longestEntry);
  content.resize(static_cast<std::size_t>(stream.gcount()));
  return content;
}

}  // namespace

std::optional<std::string> execValue(const Path& program) {
  const std::string& path = program.native();
  const bool canBeNamed =
      program.is_absolute() && isUtf8(path) && path.find('=') == std::string::npos;
  return canBeNamed ? std::optional(asEntryText(asQuotedArgument(path))) : std::nullopt;
}

XdgLoginItem::XdgLoginItem(Places places)
    : _places(std::move(places)), _command(execValue(_places.program)) {}

XdgLoginItem::Places XdgLoginItem::placesOfThisProgram(const Path& configuration) {
  const QString program = QCoreApplication::applicationFilePath();
  const QString entry = QGuiApplication::desktopFileName() + ".desktop";
  return {Path(program.toStdString()), configuration, entry.toStdString()};
}

LoginItem::Status XdgLoginItem::status() const {
  if (!_command || !isInstalled()) return Status::notFound;
  const std::string entry = contentOf(autostartEntry());
  const bool starts = valueInDesktopEntry(entry, "Exec") == _command &&
                      valueInDesktopEntry(entry, "Hidden") != "true" &&
                      valueInDesktopEntry(entry, "X-GNOME-Autostart-enabled") != "false";
  return starts ? Status::enabled : Status::notRegistered;
}

bool XdgLoginItem::registerProgram() {
  if (!_command || !isInstalled()) return false;
  std::error_code error;
  std::filesystem::create_directories(autostartEntry().parent_path(), error);
  return writeAtomically(autostartEntry(), autostartText(_places.program, *_command),
                         readableByAll);
}

bool XdgLoginItem::unregisterProgram() {
  return ::unlink(autostartEntry().c_str()) == 0;
}

bool XdgLoginItem::isInstalled() const {
  const Path prefix = _places.program.parent_path().parent_path();
  std::error_code error;
  return std::filesystem::exists(prefix / "share/applications" / _places.entry, error);
}

Path XdgLoginItem::autostartEntry() const {
  return _places.configuration / "autostart" / _places.entry;
}

}  // namespace klarvik
