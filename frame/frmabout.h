// The about box.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmAbout;
}

namespace docbench {

class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* parent = nullptr);
    ~frmAbout() override;

private:
    std::unique_ptr<Ui::frmAbout> ui_;
};

}  // namespace docbench
