#include "device/QtPorts.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLocale>
#include <QOperatingSystemVersion>
#include <QTimeZone>
#include <QUrl>

namespace ombrivane::view {
namespace {

constexpr const char* bundleIdentifier = "com.framework.Ombrivane";
constexpr const char* fontFolder = ":/com.framework.Ombrivane/fonts";

} // namespace

bool QtBundles::contains(const std::string& identifier) {
    return identifier == bundleIdentifier && QDir(fontFolder).exists();
}

std::optional<std::vector<std::string>> QtBundles::urls(const std::string& identifier,
                                                        const std::string& extension) {
    if (!contains(identifier)) return std::nullopt;
    const QDir folder(fontFolder);
    std::vector<std::string> found;
    for (const QString& file :
         folder.entryList({"*." + QString::fromStdString(extension)}, QDir::Files, QDir::Name)) {
        found.push_back(folder.filePath(file).toStdString());
    }
    return found;
}

void QtFonts::registerFont(const std::string& url) {
    QFontDatabase::addApplicationFont(QString::fromStdString(url));
}

std::string QtLocalization::localized(const std::string& key, const std::string& comment) {
    return QCoreApplication::translate("Ombrivane", key.c_str(), comment.c_str()).toStdString();
}

std::string QtLocalization::locale() {
    const QString name = QLocale::system().name();
    return name == "C" ? "en_US" : name.toStdString();
}

std::string QtLocalization::timeZone() { return QTimeZone::systemTimeZoneId().toStdString(); }

void QtUrls::openUrl(const std::string& url) { QDesktopServices::openUrl(QUrl(QString::fromStdString(url))); }

void QtSharing::share(const std::string& url) {
    const QString address = QString::fromStdString(url);
    QGuiApplication::clipboard()->setText(address);
    QDesktopServices::openUrl(QUrl(address));
}

SystemVersion systemVersion() {
    const auto current = QOperatingSystemVersion::current();
    return {current.name().toStdString(), current.majorVersion(), std::max(current.minorVersion(), 0)};
}

} // namespace ombrivane::view
