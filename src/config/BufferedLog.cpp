#include "config/BufferedLog.h"

#include "base/ColorCode.h"

#include <cstdio>
#include <cstring>
#include <new>

namespace steward {

BufferedLog::~BufferedLog()
{
    Close();
}

bool BufferedLog::OpenNew(const char* path)
{
    return Open(path, "wb");
}

bool BufferedLog::OpenAppend(const char* path)
{
    return Open(path, "ab");
}

bool BufferedLog::Open(const char* path, const char* mode)
{
    Close();
    buffer_.reset(new (std::nothrow) char[LOG_BUFFER_SIZE]());
    if (!buffer_)
        return false;
    file_.reset(std::fopen(path, mode));
    if (!file_) {
        buffer_.reset();
        return false;
    }
    // Unbuffered, so that a short write tells exactly which bytes reached the file.
    std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    return true;
}

bool BufferedLog::Write(const char* text)
{
    if (!file_)
        return true;
    if (std::strlen(text) + count_ >= LOG_BUFFER_SIZE)
        return false;
    char* out = buffer_.get() + count_;
    for (const char* c = text; *c; ++c)
        if (!IsColorCode(static_cast<unsigned char>(*c)))
            *out++ = *c;
    count_ = static_cast<std::size_t>(out - buffer_.get());
    return true;
}

bool BufferedLog::Flush()
{
    if (!file_ || count_ == 0)
        return true;
    const std::size_t written = std::fwrite(buffer_.get(), 1, count_, file_.get());
    if (written < count_) {
        std::memmove(buffer_.get(), buffer_.get() + written, count_ - written);
        count_ -= written;
        return false;
    }
    count_ = 0;
    return true;
}

bool BufferedLog::FlushIfFull()
{
    if (count_ <= LOG_FLUSH_THRESHOLD)
        return true;
    return Flush();
}

bool BufferedLog::Close()
{
    if (!file_)
        return false;
    Flush();
    file_.reset();
    buffer_.reset();
    count_ = 0;
    return true;
}

} // namespace steward
