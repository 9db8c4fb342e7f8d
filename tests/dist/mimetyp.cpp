// Prints the file type the desktop's file-type database gives the file named on the command line.
#include <QCoreApplication>
#include <QMimeDatabase>
#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc != 2) return 2;
    std::puts(qPrintable(QMimeDatabase().mimeTypeForFile(QString::fromLocal8Bit(argv[1])).name()));
    return 0;
}
