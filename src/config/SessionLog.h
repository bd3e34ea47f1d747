#pragma once

#include "config/BufferedLog.h"

#include <cstddef>

namespace steward {

class LogHost;

// Room for the path that the save dialog returns.
constexpr std::size_t LOG_PATH_SIZE = 4096;

constexpr const char LOG_DIALOG_FILE_NAME[] = "Thornmere Capture";
constexpr const char LOG_DIALOG_EXTENSION[] = "txt";
constexpr const char LOG_DIALOG_FILTER_NAME[] = "Text file";
constexpr const char LOG_DIALOG_FILTER_PATTERN[] = "*.txt";
constexpr const char LOG_DIALOG_TITLE[] = "Open Session Logfile";
constexpr const char LOG_CREATE_ERROR_TEXT[] = "Unable to create log file!";
constexpr const char LOG_CREATE_ERROR_TITLE[] = "File Error";
constexpr const char LOG_DISK_ERROR_TEXT[] =
    "\r\n\r\n*** Error writing to disk..disk full?\r\n\r\n";

// "Open Log File...": asks for a file in programFolder and opens it anew,
// replacing the log that was open. False on cancel or failure; a failure is shown.
bool OpenWithDialog(BufferedLog& log, const char* programFolder, LogHost& host);

// The main loop's turn for one log: writes it out when full; a failed write closes the log,
// beeps twice and says so in the Game window. False if the write failed.
bool FlushLogIfFull(BufferedLog& log, LogHost& host);

} // namespace steward
