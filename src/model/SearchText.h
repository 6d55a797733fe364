#pragma once

#include <QLocale>
#include <QString>

#include <string>
#include <string_view>

namespace tarnloft {

// Makes texts fit for comparing whatever the case, in the language that the user has when it is
// made: composed, and with their case folded. One text contains another exactly if its folded form
// contains the other's.
class SearchFolding {
 public:
  SearchFolding();

  QString folded(const QString& text) const;

  // Appends the folded text in UTF-8.
  void append(const QString& text, std::string& utf8) const;
  void append(std::string_view text, std::string& utf8) const;

 private:
  QLocale locale_;
  bool dotless_;  // the lower case of I has no dot
};

}  // namespace tarnloft
