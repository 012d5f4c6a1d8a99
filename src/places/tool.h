#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "places/category_type.h"

namespace klarvik {

/// Whose rights a tool needs to remove something.
enum class ToolRights {
  user,         ///< those of whoever runs it
  dockerGroup,  ///< of a member of the group of the service, which then acts as root
  asked,        ///< the tool asks for a password itself, by the desktop
  root,
};

/// What a tool answers.
enum class ToolAnswer {
  folder,            ///< one path
  condaFolders,      ///< the folders of its packages, as JSON
  dockerBuildCache,  ///< a table of what its kinds of things take, as JSON
  dockerImages,      ///< images without a name, as JSON
  podmanImages,      ///< the same, as one document
  flatpakRuntimes,   ///< references, by way of what it would do
  snapRevisions,     ///< a table
};

using ToolCommand = std::span<const std::string_view>;

/// A program that removes what it has put on the disk itself. What Klarvik runs of it are these
/// texts and names that the tool has printed, and nothing else; what it does not run is told.
struct CleaningTool {
  std::string_view id;
  std::string_view name;  ///< how the user calls it
  ToolRights rights = ToolRights::user;
  std::string_view told{};  ///< what the user may run in a terminal; empty where Klarvik runs it
  /// The same, to be run with the rights of root once the user has agreed and the system has asked
  /// for the password: a program by its full path, and constants. Empty where it is only told.
  ToolCommand asRoot{};
  ToolAnswer answer = ToolAnswer::folder;
  ToolCommand asks{};       ///< changes nothing
  ToolCommand asksFirst{};  ///< has to be answered well before the other is asked
  /// "NAME" and "REVISION" stand for names out of the answer.
  ToolCommand removes{};
  // Of what is no folder of the table of places, but known only from the answer:
  CategoryType category = CategoryType::packageCaches;
  std::string_view item{};  ///< its name; empty where the table of places has it
  std::string_view reason{};
  /// Where it lies. Nothing is asked where that is missing: some tools make it when they are asked.
  std::string_view shownAt{};

  [[nodiscard]] bool isRun() const { return told.empty(); }
};

/// The arguments with which the tool removes something. `names` take the places of "NAME" and
/// "REVISION", in this order.
[[nodiscard]] std::vector<std::string> removalCommand(const CleaningTool& tool,
                                                      std::span<const std::string> names);

/// What the user may run in a terminal instead.
[[nodiscard]] std::string commandLine(const CleaningTool& tool);

}  // namespace klarvik
