// A question with up to four buttons, whose captions the caller chooses.
#pragma once

#include <QDialog>
#include <array>

class QLabel;
class QPushButton;

namespace docbench {

class FileMissingDialog : public QDialog {
    Q_OBJECT

public:
    explicit FileMissingDialog(QWidget* parent = nullptr);

    void init(const QString& message);                  // Result becomes -1
    void SetNumberOfButton(int count);                  // from the left; ignored from 5 on
    void SetButton(int index, const QString& caption);  // ignored for a button that is not shown

    int Result = 0;  // index of the button that was pressed; -1 when the question was abandoned

private:
    static constexpr int kButtons = 4;

    QLabel* Label1;
    QLabel* Image1;
    std::array<QPushButton*, kButtons> Command1;
    int ButtonCount = kButtons;
};

}  // namespace docbench
