#include "platform/passworddialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include "platform/secretkeyring.h"
#include "services/language.h"

namespace docbench {

PasswordDialog::PasswordDialog(const QString& server, const QString& realm, bool refused,
                               QWidget* parent)
    : QDialog(parent),
      user_(new QLineEdit(this)),
      password_(new QLineEdit(this)),
      remember_(new QCheckBox(tr("&Keep in the keyring"), this)) {
    setObjectName(QStringLiteral("PasswordDialog"));
    setWindowTitle(gAppTitle);
    user_->setObjectName(QStringLiteral("user"));
    password_->setObjectName(QStringLiteral("password"));
    password_->setEchoMode(QLineEdit::Password);
    remember_->setObjectName(QStringLiteral("remember"));
    remember_->setEnabled(SecretKeyRing::IsAvailable());
    auto* question = new QLabel(this);
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    question->setText((refused ? tr("%1 did not accept the user and password for \"%2\". Please "
                                    "try again.")
                               : tr("%1 wants a user and a password for \"%2\"."))
                          .arg(server, realm));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QFormLayout(this);
    layout->addRow(question);
    layout->addRow(tr("&User:"), user_);
    layout->addRow(tr("&Password:"), password_);
    layout->addRow(QString(), remember_);
    layout->addRow(buttons);
    setMinimumWidth(380);
}

Dialogs::Password PasswordDialog::Answer() const {
    return {user_->text(), password_->text(), remember_->isEnabled() && remember_->isChecked()};
}

}  // namespace docbench
