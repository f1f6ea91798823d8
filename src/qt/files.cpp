#include "qt/files.h"

#include <fstream>
#include <iterator>

#include "numeric/checked.h"

namespace tavrelo::qt {

std::string FolderFiles::Read(std::string_view name) const {
    if (name.starts_with('\\'))
        name.remove_prefix(1);
    std::ifstream file(m_folder / std::filesystem::path(name), std::ios::binary);
    if (!file)
        throw numeric::RuntimeFailure(numeric::FailureCode::FileNotFound, std::string(name));
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace tavrelo::qt
