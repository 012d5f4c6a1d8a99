#include "support/property_lists.h"

#include <plist/plist.h>

#include <stdexcept>

namespace klarvik {

namespace {

std::string escaped(const std::string& text) {
  std::string result;
  for (const char character : text) {
    if (character == '&') {
      result += "&amp;";
    } else if (character == '<') {
      result += "&lt;";
    } else {
      result += character;
    }
  }
  return result;
}

}  // namespace

std::string xmlPropertyList(const PropertyListTexts& texts) {
  std::string list =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
      "<plist version=\"1.0\">\n<dict>\n"
      "\t<key>CFBundleInfoDictionaryVersion</key>\n\t<string>6.0</string>\n"
      "\t<key>CFBundleDocumentTypes</key>\n\t<array>\n\t\t<dict>\n"
      "\t\t\t<key>CFBundleTypeExtensions</key>\n"
      "\t\t\t<array>\n\t\t\t\t<string>letter</string>\n\t\t\t</array>\n"
      "\t\t\t<key>CFBundleTypeRole</key>\n\t\t\t<string>Editor</string>\n"
      "\t\t</dict>\n\t</array>\n"
      "\t<key>LSRequiresNativeExecution</key>\n\t<true/>\n"
      "\t<key>SampleBuildDate</key>\n\t<date>2025-11-30T08:15:00Z</date>\n"
      "\t<key>SampleBuildNumber</key>\n\t<integer>4012</integer>\n";
  for (const auto& [key, value] : texts) {
    list += "\t<key>" + escaped(key) + "</key>\n\t<string>" + escaped(value) + "</string>\n";
  }
  return list + "</dict>\n</plist>\n";
}

std::string binaryPropertyList(const PropertyListTexts& texts) {
  const std::string xml = xmlPropertyList(texts);
  plist_t list = nullptr;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &list);
  char* bytes = nullptr;
  std::uint32_t size = 0;
  plist_to_bin(list, &bytes, &size);
  plist_free(list);
  if (bytes == nullptr) throw std::invalid_argument("no property list can hold these texts");
  std::string result(bytes, size);
  plist_to_bin_free(bytes);
  return result;
}

}  // namespace klarvik
