// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/qt_file_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

namespace vmod17 {
namespace {

/// What the user does once the dialog stands.
void Then(const std::function<void(QFileDialog&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

QString NameIn(const QFileDialog& dialog) { return dialog.findChild<QLineEdit*>()->text(); }
void TypeName(const QFileDialog& dialog, const QString& name) {
  dialog.findChild<QLineEdit*>()->setText(name);
}
/// As by the dialog's button, through the check of the name.
void Accept(QFileDialog& dialog) {
  ASSERT_TRUE(QMetaObject::invokeMethod(static_cast<QDialog*>(&dialog), "accept"));
}

class QtFileDialogTest : public testing::Test {
 protected:
  QString At(const QString& name) const { return folder_.filePath(name); }
  void Make(const QString& name) const {
    QFile file(At(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  QTemporaryDir folder_;
  QtFileDialog dialog_{nullptr, QtFileDialog::Kind::kOfTheToolkit};
};

TEST_F(QtFileDialogTest, ProposesANameAndAnswersWithThePathOfTheFile) {
  QString title, proposed;
  Then([&](QFileDialog& dialog) {
    title = dialog.windowTitle();
    proposed = NameIn(dialog);
    dialog.setDirectory(folder_.path());
    TypeName(dialog, "Test-2026-01-01.xml");
    Accept(dialog);
  });
  const auto answer = dialog_.AskToSave("Speichern", "Test-2026-01-01.xml");
  EXPECT_EQ(title, "Speichern");
  EXPECT_EQ(proposed, "Test-2026-01-01.xml");
  EXPECT_EQ(answer, At("Test-2026-01-01.xml").toStdString());
}

TEST_F(QtFileDialogTest, AddsTheExtensionThatTheUserHasLeftOut) {
  Then([&](QFileDialog& dialog) {
    dialog.setDirectory(folder_.path());
    TypeName(dialog, "Klausur ♭");
    Accept(dialog);
  });
  EXPECT_EQ(dialog_.AskToSave("Speichern", "Test.xml"), At("Klausur ♭.xml").toStdString());
}

TEST_F(QtFileDialogTest, OpensAnExistingFileOfTheExtension) {
  Make("a.xml");
  QStringList filters;
  Then([&](QFileDialog& dialog) {
    filters = dialog.nameFilters();
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    dialog.setDirectory(folder_.path());
    TypeName(dialog, "a.xml");
    Accept(dialog);
  });
  EXPECT_EQ(dialog_.AskToOpen("Einlesen", "xml", ""), At("a.xml").toStdString());
  EXPECT_EQ(filters, QStringList{"*.xml"});
}

TEST_F(QtFileDialogTest, AnswersWithNothingWhenTheUserGivesUp) {
  Then([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(dialog_.AskToOpen("Einlesen", "xml", ""), std::nullopt);
  Then([](QFileDialog& dialog) { dialog.close(); });
  EXPECT_EQ(dialog_.AskToSave("Speichern", "Test.xml"), std::nullopt);
}

TEST_F(QtFileDialogTest, BeginsWhereTheLastFileWasChosen) {
  Then([&](QFileDialog& dialog) {
    dialog.setDirectory(folder_.path());
    TypeName(dialog, "a.xml");
    Accept(dialog);
  });
  dialog_.AskToSave("Speichern", "a.xml");
  QString begun;
  Then([&](QFileDialog& dialog) {
    begun = dialog.directory().absolutePath();
    dialog.reject();
  });
  dialog_.AskToOpen("Einlesen", "xml", "");
  EXPECT_EQ(begun, QDir(folder_.path()).absolutePath());
}

}  // namespace
}  // namespace vmod17
