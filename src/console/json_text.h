// SPDX-License-Identifier: GPL-2.0-or-later

// JSON as text.
#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvin {

/// Appends `value`, which is UTF-8, as a JSON string. Control characters are escaped, those from U+0080 to
/// U+009F as well; bytes that are no UTF-8 become U+FFFD.
void addJsonString(std::string& text, std::string_view value);

/// How many bytes the character at the front of `text`, which is not ASCII, takes up; 0 where the bytes are
/// no UTF-8.
std::size_t characterLength(std::string_view text);

/// Whether it is a control character from U+0080 to U+009F: some terminals obey those as well.
bool isHighControl(std::string_view character);

/// An object, member by member, as one line of output.
class JsonLine {
 public:
  JsonLine& add(std::string_view key, const QString& value);
  JsonLine& add(std::string_view key, std::int64_t value);
  JsonLine& add(std::string_view key, bool value);
  /// With its line end.
  std::string text() const { return text_ + "}\n"; }

 private:
  void addKey(std::string_view key);

  std::string text_ = "{";
};

}  // namespace quorvin
