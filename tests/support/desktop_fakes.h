#pragma once

#include "platform/application_info.h"
#include "platform/formatting.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "support/canned_command_runner.h"
#include "support/fake_status_item.h"
#include "support/fixed_volume.h"
#include "support/memory_defaults.h"
#include "support/memory_pasteboard.h"
#include "support/recording_recent_documents.h"
#include "support/recording_workspace.h"
#include "support/scripted_open_panel.h"
#include "support/scripted_updater.h"

namespace klarvik {

/// Fakes for all that a desktop offers but the files, the Trash and the time: the one place where
/// what surrounds a test is put together. Sizes and dates are written in the English of the United
/// States.
struct DesktopFakes {
  CannedCommandRunner commands;
  MemoryDefaults defaults;
  FixedVolume volume;
  Formatting formatting{"en_US"};
  ApplicationInfo info{{"CFBundleShortVersionString", "1.2.3"}, {"CFBundleVersion", "45"}};
  RecordingRecentDocuments recentDocuments;
  NotificationCenter notifications;
  RecordingWorkspace workspace;
  MemoryPasteboard pasteboard;
  ScriptedOpenPanel openPanel;
  FakeStatusItem statusItem;
  ScriptedUpdater updater;

  DesktopFakes();

  /// What an engine sees of it. Refers to this object and to what is handed in.
  [[nodiscard]] Platform platformOn(FileSystem& files, Trash& trash);
  /// Refers to this object and to what is handed in.
  [[nodiscard]] Desktop around(FileSystem& files, Trash& trash, Clock& clock);
};

}  // namespace klarvik
