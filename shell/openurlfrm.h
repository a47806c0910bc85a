// The form in which the user picks a document of a web folder.
#pragma once

#include <QDialog>

namespace docbench {

class OpenURLFrm : public QDialog {
    Q_OBJECT

public:
    explicit OpenURLFrm(QWidget* parent = nullptr);

    bool HasPicker() const { return URLFileOpen != nullptr; }
    // The address that was picked; empty when the form was left otherwise.
    const QString& Url() const { return url_; }

private Q_SLOTS:
    void OnPickerEvent(const QString& name);

private:
    QWidget* URLFileOpen = nullptr;  // the picker; null when there is none
    QString url_;
};

// Shows the form. Empty on cancel, and where there is no picker.
QString PickWebDocument(QWidget* parent);

}  // namespace docbench
