#include "app/FileChoice.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QWindow>

#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

void FileChoice::ask(QWindow& over, Kind kind, std::function<void(const QString& path)> chosen) {
    const bool writes = kind == Kind::toWrite;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAttribute(Qt::WA_NativeWindow); // It has a window before it is shown.
    dialog->setWindowTitle(writes ? tr("Export snippets") : tr("Import snippets"));
    dialog->setDirectory(QFileInfo(documents).isDir() ? documents : QDir::homePath());
    dialog->setNameFilter(tr("JSON files") + u" (*.json)"_s);
    dialog->setDefaultSuffix(u"json"_s);
    dialog->setAcceptMode(writes ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(writes ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (writes) {
        dialog->selectFile(u"ravelo-snippets.json"_s);
    }
    if (dialog->windowHandle() != nullptr) {
        dialog->windowHandle()->setTransientParent(&over);
    }
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, std::move(chosen));
    dialog->open();
}

} // namespace ravelo
