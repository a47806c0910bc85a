#include "platform/xlsxspreadsheet.h"

#include <xlsxwriter.h>
#include <zip.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <algorithm>

#include "services/docaccess.h"
#include "services/seams.h"
#include "services/shellexecute.h"
#include "services/wholefile.h"

namespace docbench {
namespace {

constexpr qsizetype kLongestCell = 32767;  // characters, a limit of the format
constexpr qsizetype kWidestColumn = 100;   // characters
constexpr size_t kMostRows = 1048576;      // a limit of the format

[[noreturn]] void Fail(const QString& path, const QString& reason) {
    throw DocumentError(QStringLiteral("The file %1 can't be written: %2. Check that you may write "
                                       "there and that there is room on the disk.")
                            .arg(path, reason));
}

void Check(lxw_error error, const QString& path) {
    if (error != LXW_NO_ERROR)
        Fail(path, QString::fromUtf8(lxw_strerror(error)));
}

void Fill(lxw_worksheet* sheet, const TextTable& table, const QString& path) {
    std::vector<qsizetype> widths(table.empty() ? 0 : table.front().size(), 0);
    for (size_t row = 0; row < table.size(); ++row) {
        for (size_t column = 0; column < table[row].size(); ++column) {
            const QString& text = table[row][column];
            widths[column] = std::max(widths[column], std::min(text.size(), kWidestColumn));
            if (!text.isEmpty())
                Check(worksheet_write_string(sheet, lxw_row_t(row), lxw_col_t(column),
                                             text.left(kLongestCell).toUtf8().constData(), nullptr),
                      path);
        }
    }
    for (size_t column = 0; column < widths.size(); ++column)
        Check(worksheet_set_column(sheet, lxw_col_t(column), lxw_col_t(column),
                                   double(widths[column]) + 2, nullptr),
              path);
}

// Whether every part of the sheet is there to its end: the writer builds them in temporary files
// and does not tell when one of those found no room.
bool IsWhole(const QString& path) {
    zip_t* const package = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr);
    bool whole = package != nullptr;
    for (zip_int64_t i = 0; whole && i < zip_get_num_entries(package, 0); ++i) {
        zip_file_t* const part = zip_fopen_index(package, zip_uint64_t(i), 0);
        QXmlStreamReader xml;
        std::vector<char> bytes(1 << 16);
        zip_int64_t got = 0;
        while (part && (got = zip_fread(part, bytes.data(), bytes.size())) > 0) {
            xml.addData(QByteArray::fromRawData(bytes.data(), got));
            while (!xml.atEnd())
                xml.readNext();
        }
        whole = part && got == 0 && !xml.hasError();
        if (part)
            zip_fclose(part);
    }
    if (package)
        zip_discard(package);
    return whole;
}

// A name in the documents folder that no file has.
QString FreePath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(folder);
    const QString stem =
        folder + QStringLiteral("/Docbench list ") + QDate::currentDate().toString(Qt::ISODate);
    QString path = stem + QStringLiteral(".xlsx");
    for (int i = 2; QFile::exists(path); ++i)
        path = stem + QStringLiteral(" (%1).xlsx").arg(i);
    return path;
}

}  // namespace

QString XlsxSpreadsheet::Show(const TextTable& table) {
    const QString path = FreePath();
    WriteXlsx(table, path);
    if (gSeams.shell)  // with no program for it the file is there all the same
        gSeams.shell->Execute(QStringLiteral("Open"), path, QStringLiteral("0"),
                              QStringLiteral("0"), 1);
    return path;
}

void WriteXlsx(const TextTable& table, const QString& path) {
    if (table.size() > kMostRows)
        Fail(path, QStringLiteral("a sheet holds no more than 1048576 rows"));
    const QString whole = path + QStringLiteral(".part");
    QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    lxw_workbook_options options = {.constant_memory = 0, .tmpdir = folder.data(), .use_zip64 = 0};
    lxw_workbook* book = workbook_new_opt(QFile::encodeName(whole).constData(), &options);
    if (!book)
        Fail(path, QStringLiteral("there is no memory for it"));
    try {
        Fill(workbook_add_worksheet(book, nullptr), table, path);
    } catch (...) {
        lxw_workbook_free(book);
        throw;
    }
    const lxw_error closed = workbook_close(book);
    const bool isWhole = closed == LXW_NO_ERROR && IsWhole(whole);
    if (isWhole && QFile::rename(whole, path))
        return;
    QFile::remove(whole);
    Fail(path, closed != LXW_NO_ERROR ? QString::fromUtf8(lxw_strerror(closed))
               : isWhole              ? QStringLiteral("there is such a file already")
                                      : QStringLiteral("there is no room for it"));
}

void WriteCsv(const TextTable& table, const QString& path) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        Fail(path, file.errorString());
    for (const std::vector<QString>& row : table) {
        QByteArray line;
        for (size_t column = 0; column < row.size(); ++column) {
            QString cell = row[column];
            const bool quoted = cell.contains(u'"') || cell.contains(u',') ||
                                cell.contains(u'\n') || cell.contains(u'\r');
            cell.replace(u'"', QStringLiteral("\"\""));
            line += (column > 0 ? "," : "") + (quoted ? '"' + cell.toUtf8() + '"' : cell.toUtf8());
        }
        file.write(line + "\r\n");
    }
    if (!CommitWhole(file))
        Fail(path, file.errorString());
}

}  // namespace docbench
