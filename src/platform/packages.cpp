#include "platform/packages.h"

#include <strings.h>

#include <algorithm>
#include <iterator>

namespace klarvik {
namespace {

constexpr std::string_view kPackageExtensions[] = {
    // Programs, and what is loaded into them
    "app", "appex", "bundle", "framework", "plugin", "kext", "dext", "systemextension", "xpc",
    "component", "vst", "vst3", "prefpane", "saver", "wdgt", "qlgenerator", "mdimporter", "osax",
    "workflow", "webplugin", "mailbundle", "fxplug", "colorpicker", "xctest", "nib",
    // Installers
    "pkg", "mpkg",
    // Projects, and what is built from them
    "xcodeproj", "xcworkspace", "playground", "xcarchive", "xcframework", "xcresult", "xcdatamodel",
    "xcdatamodeld", "xcmappingmodel", "xcappdata", "dsym", "docc", "doccarchive", "trace",
    // Libraries
    "photoslibrary", "photolibrary", "aplibrary", "migratedphotolibrary", "migratedaplibrary",
    "musiclibrary", "tvlibrary", "imovielibrary", "fcpbundle", "theater",
    // Documents
    "rtfd", "scptd", "logicx", "band", "imovieproject", "tmbundle", "pages", "numbers", "key",
    "scriv", "graffle", "dtbase2", "lrdata", "lrlibrary",
    // Virtual machines
    "pvm", "vmwarevm", "utm",
    // Disk images in pieces, and downloads under way
    "sparsebundle", "backupbundle", "download"};

bool sameIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && ::strncasecmp(a.data(), b.data(), a.size()) == 0;
}

}  // namespace

bool isPackageName(std::string_view directoryName) {
  const std::size_t dot = directoryName.rfind('.');
  if (dot == 0 || dot == std::string_view::npos) return false;
  const std::string_view extension = directoryName.substr(dot + 1);
  return std::any_of(std::begin(kPackageExtensions), std::end(kPackageExtensions),
                     [&](std::string_view known) { return sameIgnoringCase(extension, known); });
}

}  // namespace klarvik
