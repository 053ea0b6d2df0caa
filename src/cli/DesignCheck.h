#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "file/FileSax.h"
#include "platform/MessageBoxes.h"

namespace hullwright {

/// Reads a design file beside the editor's own reader and gathers what opening and saving it again
/// would lose or change.
class CDesignCheck : public CFileSax {
public:
  explicit CDesignCheck(IMessageBoxes& messages) : CFileSax(messages) {}

  void StartElement(std::u16string_view name, const AttributeMap& attributes) override;
  void EndElement(std::u16string_view name) override;
  void Characters(std::u16string_view text) override;
  void Error(std::u16string_view message, int line, int column, int code) override;
  void PassOver(std::u16string_view markup) override;

  /// What would be lost or changed, a line each; call it after the reading.
  std::vector<std::string> Findings() const;

  /// Why the file could not be read, with line and column where they are known.
  const std::string& Problem() const { return problem_; }

private:
  /// Findings of one kind are told once, with their number and the first of them.
  struct Finding {
    std::size_t count = 0;
    std::string first;
  };

  void Add(const std::string& kind, const std::string& example);
  void CheckAttributes(std::u16string_view name, const AttributeMap& attributes);
  void CheckCoordinate(const std::string& what, std::u16string_view text);
  void CheckView(std::u16string_view text);
  void CheckAnchorField(const std::string& element, std::u16string_view text);

  std::vector<std::string> path_;  ///< names of the open elements
  std::map<std::string, Finding> findings_;
  std::map<std::int32_t, int> groups_;  ///< how often a view code came
  std::map<std::string, int> singles_;  ///< how often an element came that should come once
  std::set<std::string> anchorFields_;  ///< of the anchor being read
  std::string problem_;
};

}  // namespace hullwright
