#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessarine {

// A file name is UTF-8 text everywhere in the system, on every operating system: as the
// file dialog gives it, as RomImage keeps it, as a sentence shows it. These turn such a
// text into the path the operating system takes and back. On Windows that path is wide
// (UTF-16), since the narrow calls there read a name in the ANSI code page and cannot
// reach a folder named "Pokémon hacks" or "ポケモン"; elsewhere it holds the same bytes.
//
// ToFilePath throws std::filesystem::filesystem_error on Windows for text that is not
// well-formed UTF-8; the caller turns that into its own sentence.
std::filesystem::path ToFilePath(std::string_view utf8);
std::string ToPathText(const std::filesystem::path& path);

// What the path names, as the system tells it: not_found also where the path cannot be looked
// at (a text that is no path, a folder that may not be read).
std::filesystem::file_status StatusAt(std::string_view utf8);

}  // namespace tessarine
