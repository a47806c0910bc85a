// Asks for the user and password of a web server.
#pragma once

#include <QDialog>

#include "services/dialogs.h"

class QCheckBox;
class QLineEdit;

namespace docbench {

class PasswordDialog : public QDialog {
    Q_OBJECT

public:
    PasswordDialog(const QString& server, const QString& realm, bool refused, QWidget* parent);

    Dialogs::Password Answer() const;

private:
    QLineEdit* user_;
    QLineEdit* password_;
    QCheckBox* remember_;
};

}  // namespace docbench
