#include "session/qt/FrameWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    steward::FrameWindow frame;
    frame.show();
    return app.exec();
}
