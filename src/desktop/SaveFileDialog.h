#pragma once

#include "desktop/Desktop.h"

#include <QFileDialog>

class QComboBox;

namespace QmChart6 {

/// Asks for the file to write to, with a list of the forms that it can have beside the name. Choosing a form
/// gives the name its ending; a name with an ending of none of them is refused with the list.
class SaveFileDialog : public QFileDialog {
    Q_OBJECT

public:
    SaveFileDialog(QWidget* owner, const SaveFileRequest& request);

    void accept() override;

private:
    void AddForms();
    void TakeForm(const QString& form);
    /// A name that was typed is shown by its form.
    void FollowName(const QString& name);

    SaveFileRequest request_;
    QComboBox* cbForm_ = nullptr;
};

} // namespace QmChart6
