#include "terminal/AnsiWindow.h"

#include "config/FileHandle.h"

#include <cstdio>
#include <filesystem>
#include <random>

namespace steward {

namespace {

constexpr std::size_t SCROLLBACK_PATH_SIZE = 4096;
constexpr SaveFileRequest SCROLLBACK_REQUEST{
    nullptr, "Thornmere Capture", "txt", "Text file", "*.txt", "Save Scrollback Buffer As"};
constexpr char DISK_ERROR_TITLE[] = "Disk Error";
constexpr char CREATE_FAILED_TEXT[] = "Unable to create file!";
constexpr char TEMP_FAILED_TEXT[] = "Unable to create temporary file!";
// Names tried for a new temporary file before giving up.
constexpr int TEMP_NAME_TRIES = 100;

void WriteAll(std::FILE* file, const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), file);
}

// Opens a file that did not exist before in the temporary folder, named "~" and a number,
// with ".txt" so that the desktop opens it as text.
File CreateTempFile(std::string& path)
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error)
        return File{};
    std::random_device random;
    for (int i = 0; i < TEMP_NAME_TRIES; ++i) {
        char name[32];
        std::snprintf(name, sizeof name, "~%08x.txt", static_cast<unsigned>(random()));
        path = (folder / name).string();
        if (File file{std::fopen(path.c_str(), "wbx")})
            return file;
    }
    return File{};
}

} // namespace

void AnsiWindow::CopyAllToClipboard()
{
    host_.SetClipboardText(LiveBuffer->ExportPlainText());
    host_.FocusCommandLine();
}

void AnsiWindow::CopyAllToFile()
{
    SaveScrollback(LiveBuffer->ExportPlainText());
    host_.FocusCommandLine();
}

void AnsiWindow::SaveScrollback(const std::string& text)
{
    if (!services_)
        return;
    const std::string folder = services_->ProgramFolder();
    SaveFileRequest request = SCROLLBACK_REQUEST;
    request.Folder = folder.c_str();
    char path[SCROLLBACK_PATH_SIZE] = {};
    if (!services_->AskSaveFileName(request, path, sizeof path))
        return;
    File file{std::fopen(path, "wb")};
    if (!file) {
        services_->ShowMessage(CREATE_FAILED_TEXT, DISK_ERROR_TITLE);
        return;
    }
    WriteAll(file.get(), text);
}

// The temporary file stays behind for the editor; nothing deletes it.
void AnsiWindow::EditAll()
{
    if (services_) {
        const std::string text = LiveBuffer->ExportPlainText();
        std::string path;
        if (File file = CreateTempFile(path)) {
            WriteAll(file.get(), text);
            file.reset();
            services_->RunNotepad(path);
        } else {
            services_->ShowMessage(TEMP_FAILED_TEXT, DISK_ERROR_TITLE);
        }
    }
    host_.FocusCommandLine();
}

} // namespace steward
