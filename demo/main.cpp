// The example host: edits the look of a chart and draws its own numbers with it.

#include "host_window.h"
#include "pictures.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

namespace {

/// Without a display the toolkit would end the process before it can say anything useful.
bool GoOffscreen() {
#if defined(__unix__) && !defined(__APPLE__)
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(name))
            return false;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return true;
#else
    return false;
#endif
}

} // namespace

int main(int argc, char** argv) {
    const bool blind = GoOffscreen();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("chart-editors-demo"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Edits the look of a chart and draws numbers with it."));
    const QCommandLineOption data(QStringLiteral("data"), QStringLiteral("CSV file of rows and columns."),
                                  QStringLiteral("FILE"));
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Write pictures of all there is to see, and end."),
                                      QStringLiteral("DIR"));
    parser.addOptions({data, pictures});
    parser.addHelpOption();
    parser.process(application);

    HostWindow window;
    if (parser.isSet(data)) {
        const QString path = parser.value(data);
        QString error;
        if (!window.OpenData(path, &error)) {
            std::fprintf(stderr, "%s: %s\n", qUtf8Printable(path), qUtf8Printable(error));
            return 1;
        }
    }
    if (parser.isSet(pictures))
        return WritePictures(window, parser.value(pictures)) ? 0 : 1;
    if (blind) {
        std::fputs("There is no display. --pictures DIR writes pictures of all there is to see.\n", stderr);
        return 1;
    }
    window.show();
    return QApplication::exec();
}
