#include "shell/samples.h"

#include "platform/failure.h"

#include <QFile>

#include <algorithm>

// Resources of a static library are linked only where somebody asks for them.
static void initSampleData()
{
    Q_INIT_RESOURCE(quill_shell_data);
}

namespace quill::shell {

const std::vector<Sample>& samples()
{
    static const std::vector<Sample> all = {
        {"VX4400H", "shell_sampleVX4400H", "vx4400h.xml", "vx4400h_typeinfo.xml"},
        {"VX4400F", "shell_sampleVX4400F", "vx4400f.xml", "vx4400f_typeinfo.xml"},
    };
    return all;
}

const Sample* findSample(const std::string& type)
{
    const auto found = std::ranges::find(samples(), type, &Sample::type);
    return found != samples().end() ? &*found : nullptr;
}

std::string sampleFile(const std::string& name)
{
    initSampleData();
    QFile file{QString::fromStdString(":/quill/data/" + name)};
    if (!file.open(QIODevice::ReadOnly)) {
        throw platform::failure(platform::kFileNotFound);
    }
    return file.readAll().toStdString();
}

} // namespace quill::shell
