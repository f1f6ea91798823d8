#pragma once

#include <filesystem>

#include "window/host.h"

namespace tavrelo::qt {

/// The files of one folder.
class FolderFiles : public window::Files {
  public:
    explicit FolderFiles(std::filesystem::path folder) : m_folder(std::move(folder)) {}
    std::string Read(std::string_view name) const override;

  private:
    std::filesystem::path m_folder;
};

}  // namespace tavrelo::qt
