// The connection string of the command line, as any text a user may type there.
#include "connection/ConnectionString.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    steward::ConnectionInfo info;
    if (steward::ParseConnectionString(text.c_str(), info))
        steward::ReadPortNumber(info.PortText);
    return 0;
}
