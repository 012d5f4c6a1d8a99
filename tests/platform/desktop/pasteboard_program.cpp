// pasteboard_program copy text|image|file: puts that on the clipboard, says "copied", and offers it
// until it is ended.
// pasteboard_program look|clear: says "filled" or "empty", after clearing in the second case.

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTimer>
#include <iostream>

#include "platform/desktop/qt_pasteboard.h"

namespace {

QMimeData* sample(const QString& kind) {
  auto* data = new QMimeData;
  if (kind == "text") data->setText("copied");
  if (kind == "image") data->setImageData(QImage(2, 2, QImage::Format_RGB32));
  // Qt itself offers a text beside the addresses it is given: this is what a file manager offers.
  if (kind == "file") data->setData("x-special/gnome-copied-files", "copy\nfile:///letter.txt");
  return data;
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  const QStringList words = QCoreApplication::arguments();
  if (words.at(1) == "copy") {
    QGuiApplication::clipboard()->setMimeData(sample(words.at(2)));
    QTimer::singleShot(0, [] { std::cout << "copied" << std::endl; });
    return QGuiApplication::exec();
  }
  klarvik::QtPasteboard pasteboard;
  if (words.at(1) == "clear") pasteboard.clear();
  std::cout << (pasteboard.holdsTextOrImage() ? "filled" : "empty") << std::endl;
  return 0;
}
