#include "Platform/Core/Bundle.h"

#include "Platform/Core/CodeLocation.h"
#include "Platform/Core/FatalError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <utility>

namespace platform {

namespace {

std::unique_ptr<Bundle>& mainBundle() {
    static std::unique_ptr<Bundle> bundle;
    return bundle;
}

QString mainDirectory(const QString& program) {
    const QString programs = QFileInfo(programPath()).absolutePath();
    const QDir shared(programs + u"/../share/" + program);
    return shared.exists() ? shared.canonicalPath() : programs;
}

} // namespace

const Bundle& Bundle::main() {
    auto& bundle = mainBundle();
    if (!bundle)
        bundle = std::make_unique<Bundle>(mainDirectory(QFileInfo(programPath()).completeBaseName()));
    return *bundle;
}

void Bundle::shareMainOf(const QString& program) {
    setMainDirectory(mainDirectory(program));
}

void Bundle::setMainDirectory(const QString& directory) {
    mainBundle() = std::make_unique<Bundle>(directory);
}

Bundle Bundle::containing(const void* address) {
    const QString file = codePath(address);
    return file.isEmpty() || file == programPath() ? main() : Bundle(QFileInfo(file).absolutePath());
}

Bundle Bundle::module(const QString& name, const void* marker) {
    const QString candidates[] = {main().resourceDirectory(), containing(marker).resourceDirectory(),
                                  main().directory()};
    for (const QString& candidate : candidates) {
        const QString directory = candidate + u'/' + name + u".bundle";
        if (QFileInfo(directory).isDir())
            return Bundle(directory);
    }
    fatalError("unable to find bundle named " + name.toStdString());
}

Bundle::Bundle(QString directory)
    : m_directory(std::move(directory)), m_resourceDirectory(m_directory + u"/Resources") {
    if (!QFileInfo(m_resourceDirectory).isDir())
        m_resourceDirectory = m_directory;
}

const QJsonObject& Bundle::informationDictionary() const {
    if (!m_information) {
        QFile file(m_directory + u"/Info.json");
        m_information =
            file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }
    return *m_information;
}

QString Bundle::information(const QString& key) const {
    return informationDictionary().value(key).toString();
}

} // namespace platform
