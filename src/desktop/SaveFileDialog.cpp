#include "desktop/SaveFileDialog.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace QmChart6 {

namespace {

QString PatternOf(const QString& form) {
    return QStringLiteral("*.") + form;
}

} // namespace

SaveFileDialog::SaveFileDialog(QWidget* owner, const SaveFileRequest& request)
    : QFileDialog(owner, request.title, {}, request.filter), request_(request) {
    setAcceptMode(AcceptSave); // which asks before an existing file is overwritten
    setFileMode(AnyFile);
    setDefaultSuffix(request.suffix);
    if (!request.name.isEmpty()) selectFile(request.name + u'.' + request.suffix);
    if (!request.forms.isEmpty()) AddForms();
}

void SaveFileDialog::AddForms() {
    setOption(DontUseNativeDialog); // whose rows are not ours to add to
    cbForm_ = new QComboBox(this);
    cbForm_->setObjectName(QStringLiteral("cbForm"));
    cbForm_->setAccessibleName(request_.formCaption);
    for (const QString& form : request_.forms) cbForm_->addItem(PatternOf(form), form);
    cbForm_->setCurrentIndex(cbForm_->findData(request_.suffix));
    auto* lblForm = new QLabel(request_.formCaption + u':', this);
    lblForm->setBuddy(cbForm_);
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (grid == nullptr) return; // a toolkit that lays its rows out in another way has its list of filters
    const int row = grid->rowCount();
    grid->addWidget(lblForm, row, 0);
    grid->addWidget(cbForm_, row, 1);
    connect(cbForm_, &QComboBox::activated, this, [this] { TakeForm(cbForm_->currentData().toString()); });
    if (auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        connect(name, &QLineEdit::textEdited, this, &SaveFileDialog::FollowName);
}

void SaveFileDialog::TakeForm(const QString& form) {
    setDefaultSuffix(form);
    auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString typed = name == nullptr ? QString() : name->text();
    setNameFilter(PatternOf(form));
    const QString ending = QFileInfo(typed).suffix();
    if (typed.isEmpty() || !request_.forms.contains(ending.toLower())) return;
    name->setText(typed.chopped(ending.size()) + form);
}

void SaveFileDialog::FollowName(const QString& name) {
    const int form = cbForm_->findData(QFileInfo(name).suffix().toLower());
    if (form < 0 || form == cbForm_->currentIndex()) return;
    cbForm_->setCurrentIndex(form);
    setDefaultSuffix(cbForm_->currentData().toString());
}

void SaveFileDialog::accept() {
    const QFileInfo chosen(selectedFiles().value(0));
    const bool isPicture = request_.forms.isEmpty() || request_.forms.contains(chosen.suffix().toLower());
    if (chosen.isDir() || isPicture) return QFileDialog::accept();
    QStringList endings;
    for (const QString& form : request_.forms) endings.append(u'.' + form);
    QMessageBox refused(QMessageBox::Warning, windowTitle(),
                        request_.refusal.arg(chosen.fileName(), endings.join(QStringLiteral(", "))),
                        QMessageBox::Ok, this);
    refused.setTextFormat(Qt::PlainText);
    refused.exec();
}

} // namespace QmChart6
