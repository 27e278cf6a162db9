#include "ui/preview/FormNames.h"

#include "store/history/ClipForms.h"

#include <QCoreApplication>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

QString formName(const QString& type) {
    const auto has = [&type](auto... parts) {
        return (type.contains(parts) || ...);
    };
    if (isFilesForm(type)) {
        return QCoreApplication::translate("ravelo::ClipPreview", "Files");
    }
    if (has("rtf"_L1, "richtext"_L1)) {
        return u"RTF"_s;
    }
    if (has("html"_L1)) {
        return u"HTML"_s;
    }
    if (has("spreadsheet"_L1, "csv"_L1, "tab-separated"_L1, "tsvc"_L1, "excel"_L1, "sylk"_L1,
            "-dif"_L1, "biff"_L1, "gnumeric"_L1)) {
        return QCoreApplication::translate("ravelo::ClipPreview", "Table");
    }
    return type == "text/markdown"_L1
               ? u"Markdown"_s
               : QCoreApplication::translate("ravelo::ClipPreview", "Document");
}

} // namespace

QStringList formNames(const QStringList& types) {
    QStringList names;
    for (const QString& type : types) {
        if (const QString name = formName(type); !names.contains(name)) {
            names.append(name);
        }
    }
    return names;
}

} // namespace ravelo
