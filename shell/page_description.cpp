#include "shell/page_description.h"

#include "platform/failure.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <utility>

// Resources of a static library are linked only where somebody asks for them.
static void initPages()
{
    Q_INIT_RESOURCE(quill_shell_data);
}

namespace quill::shell {

namespace {

constexpr std::array kKinds = {
    std::pair{"text", PageRow::Kind::text},
    std::pair{"combo", PageRow::Kind::combo},
    std::pair{"date", PageRow::Kind::date},
    std::pair{"time", PageRow::Kind::time},
};

[[noreturn]] void refuse(const std::string& what)
{
    throw platform::Failure(platform::kInvalidCall, "Page description: " + what);
}

std::string text(const QJsonObject& object, const char* name)
{
    return object[QLatin1String(name)].toString().toStdString();
}

PageRow readRow(const QJsonObject& row, const std::string& page)
{
    for (const auto& [name, kind] : kKinds) {
        if (std::string parameter = text(row, name); !parameter.empty()) {
            return {kind, std::move(parameter)};
        }
    }
    refuse("a row of page \"" + page + "\" names no parameter of a known kind");
}

PageSection readSection(const QJsonObject& object, const std::string& page)
{
    PageSection section{text(object, "title"), text(object, "group"), {}};
    for (const auto& row : object[QLatin1String("rows")].toArray()) {
        section.rows.push_back(readRow(row.toObject(), page));
    }
    return section;
}

PageDescription readPage(const QJsonObject& object)
{
    PageDescription page{text(object, "tag"), text(object, "parent"), text(object, "title"), {}};
    if (page.tag.empty()) {
        refuse("a page has no tag");
    }
    for (const auto& section : object[QLatin1String("sections")].toArray()) {
        page.sections.push_back(readSection(section.toObject(), page.tag));
    }
    return page;
}

} // namespace

std::vector<PageDescription> readPages(const QByteArray& json)
{
    QJsonParseError error;
    const auto      document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        refuse(error.errorString().toStdString());
    }
    std::vector<PageDescription> pages;
    for (const auto& object : document.object()[QLatin1String("pages")].toArray()) {
        PageDescription page = readPage(object.toObject());
        if (std::any_of(pages.begin(), pages.end(),
                        [&](const auto& other) { return other.tag == page.tag; })) {
            refuse("there are two pages with the tag \"" + page.tag + "\"");
        }
        pages.push_back(std::move(page));
    }
    if (pages.empty()) {
        refuse("it holds no pages");
    }
    return pages;
}

std::vector<PageDescription> builtInPages()
{
    initPages();
    QFile file{QStringLiteral(":/quill/data/pages.json")};
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.errorString().toStdString());
    }
    return readPages(file.readAll());
}

} // namespace quill::shell
