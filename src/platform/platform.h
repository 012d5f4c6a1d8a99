#pragma once

namespace klarvik {

// Declared only: whoever calls one of these includes its header, so that a change to one interface
// compiles what uses it and not all that is handed the platform.
struct ApplicationInfo;
class Clock;
class CommandRunner;
class FileSystem;
class Formatting;
class MotionPreference;
class NotificationCenter;
class OpenPanel;
class Pasteboard;
class RecentDocuments;
class RunningPrograms;
class StatusItem;
class ToolRunner;
class Trash;
class Updater;
class UserDefaults;
class Volume;
class Workspace;

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
  RunningPrograms& programs;
  ToolRunner& tools;
};

/// The same, with what only a program that has a main loop and a desktop around it can offer.
struct Desktop : Platform {
  Clock& clock;
  NotificationCenter& notifications;
  Workspace& workspace;
  MotionPreference& motion;
  Pasteboard& pasteboard;
  OpenPanel& openPanel;
  StatusItem& statusItem;
  Updater& updater;
};

}  // namespace klarvik
