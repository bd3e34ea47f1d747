#include "config/IniBatch.h"

#include <utility>

namespace steward {

namespace {

// The client runs on one thread, so one open batch is all there can be.
IniBatch* openBatch = nullptr;

} // namespace

IniBatch::IniBatch(std::string path) : path_(std::move(path)), file_(IniFile::Load(path_))
{
    openBatch = this;
}

IniBatch::~IniBatch()
{
    openBatch = nullptr;
}

bool IniBatch::Commit()
{
    return file_.Save(path_);
}

IniFile* IniBatch::FileOf(std::string_view path)
{
    return openBatch && openBatch->path_ == path ? &openBatch->file_ : nullptr;
}

} // namespace steward
