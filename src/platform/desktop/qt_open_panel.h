#pragma once

#include <QFileDialog>
#include <memory>

#include "platform/desktop_services.h"
#include "platform/file_system.h"

namespace klarvik {

/// The folder panel that Qt draws itself, for desktops without a portal: those of Qt's that ask the
/// desktop let choose a single folder.
/// Needs a `QApplication` as long as it is in use.
class QtOpenPanel final : public OpenPanel {
 public:
  explicit QtOpenPanel(const FileSystem& files);

  void chooseFolders(const Request& request, Answer answer) override;

 private:
  [[nodiscard]] std::vector<Path> chosen() const;

  const FileSystem& _files;
  std::unique_ptr<QFileDialog> _dialog;
};

}  // namespace klarvik
