#pragma once

#include "platform/application_info.h"
#include "platform/clock.h"
#include "platform/command_runner.h"
#include "platform/file_system.h"
#include "platform/formatting.h"
#include "platform/notification_center.h"
#include "platform/open_panel.h"
#include "platform/pasteboard.h"
#include "platform/recent_documents.h"
#include "platform/status_item.h"
#include "platform/trash.h"
#include "platform/updater.h"
#include "platform/user_defaults.h"
#include "platform/volume.h"
#include "platform/workspace.h"

namespace klarvik {

/// What the engines may ask of the system they run on. Made once at start, and handed down by
/// reference; whoever holds it must not outlive what it refers to.
struct Platform {
  FileSystem& files;
  Trash& trash;
  CommandRunner& commands;
  UserDefaults& defaults;
  Volume& volume;
  Formatting& formatting;
  const ApplicationInfo& info;
  RecentDocuments& recentDocuments;
};

/// The same, with what only a program that has a main loop and a desktop around it can offer.
struct Desktop : Platform {
  Clock& clock;
  NotificationCenter& notifications;
  Workspace& workspace;
  Pasteboard& pasteboard;
  OpenPanel& openPanel;
  StatusItem& statusItem;
  Updater& updater;
};

}  // namespace klarvik
