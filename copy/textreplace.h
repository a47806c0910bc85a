// Finds and replaces a text in the third column of a list, row by row.
#pragma once

#include <QString>

namespace docbench {

class CellList;

// Letter case counts. The cell's text is what is searched; its tag holds the whole path, as its
// tool tip does. The column's header has the tag "S" when it shows file names alone.
class TextReplace {
public:
    explicit TextReplace(CellList& list) : list_(list) {}
    ~TextReplace() { ShowHit(false); }
    TextReplace(const TextReplace&) = delete;
    TextReplace& operator=(const TextReplace&) = delete;

    int CurrentRow() const { return currentRow; }  // of the last hit, from 1; 0 for none

    // Goes to the next row that holds the text. False when there is none: the next search begins at
    // the top.
    bool FindNext(const QString& text);
    // Replaces every occurrence in the row of the last hit, then goes on as FindNext.
    bool Replace(const QString& text, const QString& by);
    // From the last hit, or the top, to the end of the list.
    void ReplaceAll(const QString& text, const QString& by);

private:
    bool IsThere(int row) const;
    int FindFrom(int row, const QString& text) const;  // 0 for none
    void ReplaceInRow(int row, const QString& text, const QString& by);
    void ShowHit(bool bold);

    CellList& list_;
    int currentRow = 0;
};

}  // namespace docbench
