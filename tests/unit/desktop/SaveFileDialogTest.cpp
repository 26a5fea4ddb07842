#include "desktop/SaveFileDialog.h"

#include "desktop/Application.h"
#include "support/Person.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace QmChart6;

namespace {

class SaveFileDialogTest : public testing::Test {
protected:
    SaveFileDialogTest() {
        EnsureApplication();
        dialog = std::make_unique<SaveFileDialog>(
            nullptr, SaveFileRequest{.title = QStringLiteral("Save as .bmp"),
                                     .filter = QStringLiteral("*.bmp"),
                                     .suffix = QStringLiteral("bmp"),
                                     .name = QStringLiteral("Sales"),
                                     .forms = {QStringLiteral("bmp"), QStringLiteral("png")},
                                     .formCaption = QStringLiteral("Format"),
                                     .refusal = QStringLiteral("%1 is none of %2")});
        dialog->setDirectory(folder.path());
        dialog->show();
    }
    [[nodiscard]] QLineEdit& Name() const {
        return *dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    }
    [[nodiscard]] QComboBox& Forms() const {
        return *dialog->findChild<QComboBox*>(QStringLiteral("cbForm"));
    }
    void TakeForm(int index) const {
        Forms().setCurrentIndex(index);
        Q_EMIT Forms().activated(index);
    }
    void Type(const QString& name) const {
        Name().setText(name);
        Q_EMIT Name().textEdited(name);
    }

    QTemporaryDir folder;
    std::unique_ptr<SaveFileDialog> dialog;
};

} // namespace

TEST_F(SaveFileDialogTest, IsSetUpAsAskedWithTheFormsBesideIt) {
    EXPECT_EQ(dialog->windowTitle(), "Save as .bmp");
    EXPECT_EQ(dialog->nameFilters(), QStringList("*.bmp"));
    EXPECT_EQ(dialog->defaultSuffix(), "bmp");
    EXPECT_EQ(Name().text(), "Sales.bmp");
    EXPECT_EQ(Forms().currentText(), "*.bmp");
    EXPECT_EQ(Forms().itemText(1), "*.png");
}

TEST_F(SaveFileDialogTest, AFormGivesTheNameItsEnding) {
    TakeForm(1);
    EXPECT_EQ(Name().text(), "Sales.png");
    dialog->accept();
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(folder.filePath(QStringLiteral("Sales.png"))));
}

TEST_F(SaveFileDialogTest, ATypedEndingIsItsFormAndANameWithoutOneGetsThatOfTheForm) {
    Type(QStringLiteral("other.PNG"));
    EXPECT_EQ(Forms().currentText(), "*.png");
    Type(QStringLiteral("plain"));
    dialog->accept();
    EXPECT_EQ(dialog->selectedFiles(), QStringList(folder.filePath(QStringLiteral("plain.png"))));
}

TEST_F(SaveFileDialogTest, ANameThatIsNoPictureIsRefusedWithTheListOfForms) {
    QString told;
    Person<QMessageBox> person([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    Type(QStringLiteral("sales.jpg"));
    dialog->accept();
    EXPECT_TRUE(person.WasAsked());
    EXPECT_EQ(told, "sales.jpg is none of .bmp, .png");
    EXPECT_TRUE(dialog->isVisible());
}
