#include "config/SessionLog.h"

#include "config/LogHost.h"

namespace steward {

bool OpenWithDialog(BufferedLog& log, const char* programFolder, LogHost& host)
{
    const SaveFileRequest request{
        programFolder,          LOG_DIALOG_FILE_NAME,      LOG_DIALOG_EXTENSION,
        LOG_DIALOG_FILTER_NAME, LOG_DIALOG_FILTER_PATTERN, LOG_DIALOG_TITLE};
    char path[LOG_PATH_SIZE] = {};
    if (!host.AskSaveFileName(request, path, sizeof path))
        return false;
    if (log.OpenNew(path))
        return true;
    host.ShowMessage(LOG_CREATE_ERROR_TEXT, LOG_CREATE_ERROR_TITLE);
    return false;
}

bool FlushLogIfFull(BufferedLog& log, LogHost& host)
{
    if (log.FlushIfFull())
        return true;
    log.Close();
    host.Beep();
    host.Beep();
    host.PrintToGameWindow(LOG_DISK_ERROR_TEXT);
    return false;
}

} // namespace steward
