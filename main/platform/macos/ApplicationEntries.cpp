// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// Each entry is a small bundle whose program is a shell script.

#include "platform/process/ApplicationEntries.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "model/ByteText.h"
#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".app";
constexpr std::string_view kIdKey = "SelvaneEntry";
constexpr std::string_view kOwnerKey = "SelvaneOwner";
constexpr std::string_view kLookKey = "SelvaneIcon";
constexpr std::string_view kProgramKey = "SelvaneProgram";
constexpr std::string_view kScript = "Contents/MacOS/start";
constexpr std::string_view kIcon = "Contents/Resources/Icon.icns";
constexpr std::string_view kProperties = "Contents/Info.plist";

const FileManager kFiles;

/// The type by which an icon file knows pictures of a size.
struct PictureType {
    IconSize size;
    std::string_view type;
};
constexpr std::array<PictureType, 10> kPictureTypes = {{{{16, 1}, "icp4"},
                                                        {{16, 2}, "ic11"},
                                                        {{32, 1}, "icp5"},
                                                        {{32, 2}, "ic12"},
                                                        {{128, 1}, "ic07"},
                                                        {{128, 2}, "ic13"},
                                                        {{256, 1}, "ic08"},
                                                        {{256, 2}, "ic14"},
                                                        {{512, 1}, "ic09"},
                                                        {{512, 2}, "ic10"}}};

std::string chunk(std::string_view type, const std::string& content) {
    constexpr std::size_t kHeader = 8;
    const auto size = static_cast<std::uint32_t>(content.size() + kHeader);
    std::string result(type);
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        result += static_cast<char>(size >> shift & 0xFFU);
    return result + content;
}

std::string iconFile(const std::vector<IconImage>& icon) {
    std::string pictures;
    for (const IconImage& image : icon) {
        const auto* const known = std::ranges::find(kPictureTypes, image.size, &PictureType::size);
        if (known != kPictureTypes.end())
            pictures += chunk(known->type, image.png);
    }
    return chunk("icns", pictures);
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char byte : text)
        result += byte == '&' ? "&amp;" : byte == '<' ? "&lt;" : std::string(1, byte);
    return result;
}

std::string unescaped(std::string text) {
    for (const auto& [name, byte] : {std::pair("&lt;", "<"), {"&amp;", "&"}}) {
        const std::string_view escape = name;
        for (std::size_t at = text.find(escape); at != text.npos; at = text.find(escape, at + 1))
            text.replace(at, escape.size(), byte);
    }
    return text;
}

std::string opening(std::string_view key) {
    return "<key>" + std::string(key) + "</key>\n<string>";
}

std::string property(std::string_view key, const std::string& value) {
    if (!isUtf8(value) || text::singleLine(value) != value)
        throw LauncherError(text::singleLine(value) + ": non può stare fra le applicazioni");
    return opening(key) + escaped(value) + "</string>\n";
}

std::string valueOf(const std::string& properties, std::string_view key) {
    const std::string begin = opening(key);
    const std::size_t at = properties.find(begin);
    if (at == properties.npos)
        return {};
    const std::size_t value = at + begin.size();
    return unescaped(properties.substr(value, properties.find("</string>", value) - value));
}

std::string propertiesOf(const ApplicationEntry& entry) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<dict>\n" +
           property("CFBundleExecutable", "start") + property("CFBundleIconFile", "Icon") +
           property("CFBundleIdentifier", "org.selvane.Selvane." + entry.id) +
           property("CFBundleInfoDictionaryVersion", "6.0") + property("CFBundleName", entry.name) +
           property("CFBundlePackageType", "APPL") + property("LSMinimumSystemVersion", "14.0") +
           // Without this, a script may be taken for a program of the other kind of processor.
           "<key>LSArchitecturePriority</key>\n<array><string>arm64</string><string>x86_64</string></"
           "array>\n" +
           property(kIdKey, entry.id) + property(kOwnerKey, entry.note.owner.string()) +
           property(kLookKey, entry.note.look) + property(kProgramKey, entry.note.program.string()) +
           "</dict>\n</plist>\n";
}

std::string scriptOf(const ApplicationEntry& entry) {
    std::string script = "#!/bin/sh\n";
    for (const auto& [name, value] : entry.environment)
        script += "export " + name + "=" + text::quotedForShell(value) + "\n";
    script += "exec " + text::quotedForShell(entry.note.program.string());
    for (const std::string& argument : entry.arguments)
        script += " " + text::quotedForShell(argument);
    return script + "\n";
}

/// What the Finder shows as "/" is ":" in a file's name.
std::string fileName(const std::string& name) {
    constexpr std::size_t kLongest = 200; // bytes; what follows must fit, too
    std::string result = name.substr(0, kLongest);
    while (!isUtf8(result))
        result.pop_back();
    std::ranges::replace(result, ':', '-');
    std::ranges::replace(result, '/', ':');
    return result;
}

/// The names that a bundle may have, the best first: another profile may have the same name.
std::array<std::string, 2> fileNames(const ApplicationEntry& entry) {
    const std::string name = fileName(entry.name);
    return {name + std::string(kEnding), name + " (" + entry.id + ")" + std::string(kEnding)};
}

std::string propertiesIn(const fs::path& bundle) {
    return kFiles.readIfPossible(bundle / kProperties, FileManager::kLongestRecord).value_or("");
}

/// Selvane's bundles by the ids of their entries.
std::vector<std::pair<std::string, fs::path>> bundles(const fs::path& applications) {
    std::vector<std::pair<std::string, fs::path>> result;
    for (const std::string& name : kFiles.entriesIfReadable(applications)) {
        if (!name.ends_with(kEnding) || name.starts_with(FileManager::kTemporaryPrefix))
            continue;
        if (std::string id = valueOf(propertiesIn(applications / name), kIdKey); !id.empty())
            result.emplace_back(std::move(id), applications / name);
    }
    return result;
}

std::optional<fs::path> bundleOf(const fs::path& applications, const std::string& id) {
    for (const auto& [found, bundle] : bundles(applications)) {
        if (found == id)
            return bundle;
    }
    return std::nullopt;
}

/// Where the entry's bundle is to be; `before` is where it is.
fs::path placeFor(const ApplicationEntry& entry, const fs::path& applications,
                  const std::optional<fs::path>& before) {
    for (const std::string& name : fileNames(entry)) {
        if (const fs::path place = applications / name; place == before || !kFiles.exists(place))
            return place;
    }
    throw LauncherError("C'è già un'altra applicazione, spostala e riprova: " +
                        text::singleLine((applications / fileNames(entry)[1]).string()));
}

} // namespace

ApplicationEntries::ApplicationEntries(const Environment& environment)
    : m_applications(homeFolder(environment) / "Applications") {}

std::vector<IconSize> ApplicationEntries::iconSizes() {
    std::vector<IconSize> sizes;
    for (const PictureType& type : kPictureTypes)
        sizes.push_back(type.size);
    return sizes;
}

std::vector<std::string> ApplicationEntries::windowArguments(const std::string& /*id*/) {
    return {}; // a window belongs to the application that shows it
}

std::vector<std::string> ApplicationEntries::ids() const {
    std::vector<std::string> result;
    for (auto& [id, bundle] : bundles(m_applications))
        result.push_back(id);
    return result;
}

std::optional<EntryNote> ApplicationEntries::note(const std::string& id) const {
    const auto bundle = bundleOf(m_applications, id);
    if (!bundle)
        return std::nullopt;
    const std::string properties = propertiesIn(*bundle);
    return EntryNote{valueOf(properties, kOwnerKey), valueOf(properties, kLookKey),
                     valueOf(properties, kProgramKey)};
}

bool ApplicationEntries::says(const ApplicationEntry& entry) const {
    try {
        const auto bundle = bundleOf(m_applications, entry.id);
        return bundle && *bundle == placeFor(entry, m_applications, bundle) &&
               propertiesIn(*bundle) == propertiesOf(entry) &&
               kFiles.readIfPossible(*bundle / kScript, FileManager::kLongestRecord) == scriptOf(entry);
    } catch (const std::exception&) { // it can't
        return false;
    }
}

void ApplicationEntries::write(const ApplicationEntry& entry, const std::vector<IconImage>& icon) const {
    const std::string properties = propertiesOf(entry);
    const auto before = bundleOf(m_applications, entry.id);
    const fs::path place = placeFor(entry, m_applications, before);
    kFiles.createFolders(m_applications);
    // A new one appears when it is complete; an older one stays one all the time.
    const fs::path bundle =
        before
            ? *before
            : m_applications / (std::string(FileManager::kTemporaryPrefix) + entry.id + std::string(kEnding));
    if (!before)
        kFiles.removeTree(bundle);
    for (const std::string_view file : {kScript, kIcon})
        kFiles.createFolders((bundle / file).parent_path());
    if (!icon.empty())
        kFiles.write(bundle / kIcon, iconFile(icon));
    kFiles.write(bundle / kScript, scriptOf(entry));
    kFiles.setMode(bundle / kScript, 0755);
    kFiles.write(bundle / kProperties, properties);
    if (bundle != place)
        kFiles.move(bundle, place);
}

void ApplicationEntries::remove(const std::string& id) const {
    if (const auto bundle = bundleOf(m_applications, id))
        kFiles.removeTree(*bundle);
}

} // namespace selvane
