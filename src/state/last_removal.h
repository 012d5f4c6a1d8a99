#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "core/removal_outcome.h"
#include "platform/main_loop/background_tasks.h"

namespace klarvik {

class RemovalNotice;
struct Desktop;

/// What the last removal of a tool moved to the Trash, and the way back from it. The Smart Scan has
/// its own. Stays until it is dismissed or there is another. Main thread only.
class LastRemoval : public QObject {
  Q_OBJECT
 public:
  struct Summary {
    /// The application that was uninstalled; empty where files were removed.
    std::string application{};
    std::int64_t itemCount = 0;
    std::int64_t bytes = 0;
    /// How many were put back; absent before anybody asked for it.
    std::optional<std::int64_t> restoredCount{};

    bool operator==(const Summary&) const = default;
  };

  LastRemoval(const Desktop& desktop, RemovalNotice& notice, QObject* parent = nullptr);
  /// Waits for the item that is being put back.
  ~LastRemoval() override;

  /// Absent while there is nothing to tell.
  [[nodiscard]] const std::optional<Summary>& summary() const { return _summary; }
  /// Whether something can be put back, and nobody does so already.
  [[nodiscard]] bool canRestore() const { return !_items.empty() && !_isRestoring; }

  /// At the end of a removal. One that moved nothing is no news. `whenRestored` is called once
  /// something of it was put back.
  void tell(std::vector<TrashedItem> items, std::function<void()> whenRestored = {});
  /// At the end of the uninstalling of an application that is gone, wherever to.
  void tellUninstalled(std::string application, std::vector<TrashedItem> items,
                       std::function<void()> whenRestored);
  void dismiss();
  QCoro::Task<> restore();

 signals:
  void changed();

 private:
  void show(Summary summary, std::vector<TrashedItem> items, std::function<void()> whenRestored);

  const Desktop& _desktop;
  RemovalNotice& _notice;
  std::optional<Summary> _summary;
  std::vector<TrashedItem> _items;  // that can be put back
  std::function<void()> _whenRestored;
  bool _isRestoring = false;
  std::stop_source _lifetime;
  BackgroundTasks _work;
};

}  // namespace klarvik
