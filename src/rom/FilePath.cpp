#include "rom/FilePath.h"

namespace tessarine {

std::filesystem::path ToFilePath(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string ToPathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::filesystem::file_status StatusAt(std::string_view utf8) {
  std::error_code unknown;
  try {
    const std::filesystem::file_status status = std::filesystem::status(ToFilePath(utf8), unknown);
    return unknown ? std::filesystem::file_status(std::filesystem::file_type::not_found) : status;
  } catch (const std::filesystem::filesystem_error&) {
    return std::filesystem::file_status(std::filesystem::file_type::not_found);
  }
}

}  // namespace tessarine
