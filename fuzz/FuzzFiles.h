#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace steward::fuzz {

// A folder of this process's own, for the inputs that the readers under test take as files.
inline const std::filesystem::path& ScratchFolder()
{
    static const std::filesystem::path folder = [] {
        std::filesystem::path path =
            std::filesystem::temp_directory_path() / ("steward-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        std::atexit([] {
            std::error_code ignored;
            std::filesystem::remove_all(ScratchFolder(), ignored);
        });
        return path;
    }();
    return folder;
}

// Writes the input as the file name in the scratch folder and gives its path.
inline std::string InputFile(const char* name, const std::uint8_t* data, std::size_t size)
{
    const std::string path = (ScratchFolder() / name).string();
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return path;
}

} // namespace steward::fuzz
