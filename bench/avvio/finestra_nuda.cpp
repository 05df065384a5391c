// The least that a Qt program with a main window can be; with an argument, one that shows a line of text.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication applicazione(argc, argv);
    QMainWindow finestra;
    if (argc > 1)
        finestra.setCentralWidget(new QLabel(QString::fromLocal8Bit(argv[1])));
    finestra.showMaximized();
    return QApplication::exec();
}
