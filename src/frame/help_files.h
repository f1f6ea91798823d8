#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "window/form1.h"

namespace tavrelo::frame {

/// The whole of a file beside the program as UTF-8; fails with FileNotFound.
std::string ReadTextFile(const window::Files& files, std::string_view path);

/// The text between the line "[tag]" and the line "[STOP]", its lines parted by CR LF. Fails with
/// FileNotFound when the file, the tag or the end is missing.
std::string ReadTopic(const window::Files& files, std::string_view path, std::string_view tag);

/// Reads a topic and renders it into a box, caret at the front. A failure shows its own box and leaves the
/// target as it was; the answer is then false.
bool LoadTopic(window::Form1& form, window::RichTextBox& target, std::string_view font_name, double font_size,
               std::string_view path, std::string_view tag);

}  // namespace tavrelo::frame
