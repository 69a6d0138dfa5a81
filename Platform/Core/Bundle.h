#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace platform {

/// A directory with resources: the application's own, a plug-in's, or a module's `<Name>.bundle`. Main
/// thread.
class Bundle {
public:
    /// The application's bundle: `../share/<program>` beside the program's directory if that exists, else the
    /// program's directory.
    static const Bundle& main();

    /// The bundle of the code that contains `address`, a function or variable with static storage: for the
    /// program itself the main bundle, for a loaded library the directory that it lies in.
    static Bundle containing(const void* address);

    /// Makes the main bundle that of another program of the same installation.
    static void shareMainOf(const QString& program);

    /// Makes `directory` the main bundle, for programs that do not lie beside their resources (tests).
    static void setMainDirectory(const QString& directory);

    /// The first `name`.bundle in: the main bundle's resources, the resources of the bundle that holds
    /// `marker`, the main bundle's directory. Stops the program with "unable to find bundle named `name`" if
    /// there is none.
    static Bundle module(const QString& name, const void* marker);

    explicit Bundle(QString directory);

    const QString& directory() const { return m_directory; }

    /// `<directory>/Resources` if that exists, else the directory.
    const QString& resourceDirectory() const { return m_resourceDirectory; }

    /// The path of a resource; the file need not exist.
    QString path(const QString& relative) const { return m_resourceDirectory + u'/' + relative; }

    /// A string of the bundle's `Info.json`, or empty.
    QString information(const QString& key) const;

private:
    const QJsonObject& informationDictionary() const;

    QString m_directory;
    QString m_resourceDirectory;
    mutable std::optional<QJsonObject> m_information;
};

} // namespace platform
