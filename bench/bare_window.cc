// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A bare window with 60 buttons, as a measure of what any program with a window costs.

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QWidget>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QWidget window;
  QGridLayout layout(&window);
  for (int i = 0; i < 60; ++i) {
    layout.addWidget(new QPushButton(QString::number(i)), i / 6, i % 6);
  }
  window.showMaximized();
  return QApplication::exec();
}
