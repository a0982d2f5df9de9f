#include "shell/page_description.h"

#include "framework/documents.h"
#include "platform/failure.h"
#include "shell/samples.h"
#include "shell/view_factory.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <utility>

namespace quill::shell {

namespace {

constexpr std::array kKinds = {
    std::pair{"text", PageRow::Kind::text},         std::pair{"combo", PageRow::Kind::combo},
    std::pair{"date", PageRow::Kind::date},         std::pair{"time", PageRow::Kind::time},
    std::pair{"option", PageRow::Kind::option},     std::pair{"check", PageRow::Kind::check},
    std::pair{"duration", PageRow::Kind::duration},
};

[[noreturn]] void refuse(const std::string& what)
{
    throw platform::Failure(platform::kInvalidCall, "Page description: " + what);
}

std::string text(const QJsonObject& object, const char* name)
{
    return object[QLatin1String(name)].toString().toStdString();
}

std::vector<std::string> list(const QJsonObject& object, const char* name)
{
    std::vector<std::string> texts;
    for (const auto& entry : object[QLatin1String(name)].toArray()) {
        texts.push_back(entry.toString().toStdString());
    }
    return texts;
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
    PageDescription page{text(object, "tag"), text(object, "parent"), text(object, "title")};
    if (page.tag.empty()) {
        refuse("a page has no tag");
    }
    for (const auto& section : object[QLatin1String("sections")].toArray()) {
        page.sections.push_back(readSection(section.toObject(), page.tag));
    }
    page.view    = text(object, "view");
    page.viewTag = text(object, "viewTag");
    page.cycle   = text(object, "cycle");
    page.speaks  = object[QLatin1String("speaks")].toBool(true);
    page.devices = list(object, "devices");
    page.read    = list(object, "read");
    if (!page.view.empty() && !page.sections.empty()) {
        refuse("page \"" + page.tag + "\" has sections and a view");
    }
    if (!page.view.empty() && findView(page.view) == nullptr) {
        refuse("page \"" + page.tag + "\" names no view that there is: " + page.view);
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

std::vector<PageDescription> pagesFor(const std::vector<PageDescription>& pages,
                                      const std::string& deviceType, const IXMLDOMNode& datafile)
{
    std::vector<PageDescription> result;
    for (PageDescription page : pages) {
        if (!page.devices.empty() &&
            std::ranges::find(page.devices, deviceType) == page.devices.end()) {
            continue;
        }
        for (PageSection& section : page.sections) {
            std::erase_if(section.rows, [&](const PageRow& row) {
                return !documents::findParameter(datafile, row.parameter);
            });
        }
        std::erase_if(page.sections,
                      [](const PageSection& section) { return section.rows.empty(); });
        std::erase_if(page.read, [&](const std::string& group) {
            return !documents::findRequestGroup(datafile, group);
        });
        if (!page.sections.empty() || !page.view.empty()) {
            result.push_back(std::move(page));
        }
    }
    return result;
}

std::vector<PageDescription> builtInPages()
{
    return readPages(QByteArray::fromStdString(sampleFile("pages.json")));
}

} // namespace quill::shell
