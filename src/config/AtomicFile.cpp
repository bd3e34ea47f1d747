#include "config/AtomicFile.h"

#include <cstdio>
#include <utility>

namespace steward {

AtomicFile::AtomicFile(std::string path)
    : path_(std::move(path)), temporary_(path_ + ".tmp"),
      file_(std::fopen(temporary_.c_str(), "wb"))
{
}

AtomicFile::~AtomicFile()
{
    if (file_) {
        file_.reset();
        std::remove(temporary_.c_str());
    }
}

bool AtomicFile::Commit()
{
    if (!file_)
        return false;
    const bool written = std::fflush(file_.get()) == 0 && !std::ferror(file_.get());
    const bool closed = std::fclose(file_.release()) == 0;
    if (written && closed && std::rename(temporary_.c_str(), path_.c_str()) == 0)
        return true;
    std::remove(temporary_.c_str());
    return false;
}

} // namespace steward
