// The picker of a document in a web folder.
#pragma once

#include <QStringList>
#include <QWidget>

class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace docbench {

class PathCombo;

// Driven by name, as a component: SetType and AddFileType prepare it, the property "url" is what
// was picked, and Event tells what happened: "OpenEvent", "CancelEvent", "FileTypeChangeEvent".
class URLFileOpen : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString url READ Url)

public:
    explicit URLFileOpen(QWidget* parent = nullptr);

    QString Url() const { return url_; }
    Q_INVOKABLE void SetType(const QString& type);  // "open" is the only one
    // A label with its patterns in brackets: "Part files(*.tfmprt, *.prt)".
    Q_INVOKABLE void AddFileType(const QString& type);

Q_SIGNALS:
    void Event(const QString& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakeLayout();
    void Go(const QString& typed);  // to an address that was typed or chosen
    void ShowFolder(const QString& url);
    void ListEntries();
    void Activate(const QListWidgetItem* item);
    void Open(const QString& url);
    void ShowError(const QString& text);
    bool Matches(const QString& name) const;
    void Remember(const QString& folder);

    PathCombo* address_;
    QListWidget* entries_;
    QComboBox* types_;
    QPushButton* open_;
    QPushButton* up_;
    QLabel* error_;
    QString folder_;       // that is listed, with a "/" at its end; empty when there is none
    QStringList folders_;  // addresses in it
    QStringList files_;
    QString url_;
};

}  // namespace docbench
