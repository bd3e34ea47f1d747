#include "Server.h"
#include "WorldOptions.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    WorldOptions options;
    QString error;
    if (!ParseWorldOptions(app.arguments(), options, error)) {
        std::fprintf(stderr, "thornmere-world: %s\n", qPrintable(error));
        return 2;
    }
    if (!options.helpText.isEmpty()) {
        std::fputs(qPrintable(options.helpText), stdout);
        return 0;
    }
    Server server(options);
    if (!server.Start(error)) {
        std::fprintf(stderr, "thornmere-world: %s\n", qPrintable(error));
        return 1;
    }
    if (options.port == 0)
        std::printf("%u\n", unsigned(server.Port()));
    else
        std::printf("Thornmere world listening on %s port %u\n",
                    qPrintable(options.listenAddress.toString()), unsigned(server.Port()));
    std::fflush(stdout);
    return app.exec();
}
