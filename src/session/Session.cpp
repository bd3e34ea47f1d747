#include "session/Session.h"

#include "base/ByteText.h"

#include <cstdio>

namespace steward {

void SetConnectionString(Session& session, const char* text)
{
    CopyCut(session.ConnectionString, CONNECTION_STRING_SIZE, text);
}

void FormatConnectionString(char (&out)[CONNECTION_STRING_SIZE], const char* host, int port)
{
    std::snprintf(out, CONNECTION_STRING_SIZE, "/H%s/P%d", host, port);
}

} // namespace steward
