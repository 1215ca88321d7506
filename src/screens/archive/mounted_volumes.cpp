// SPDX-License-Identifier: MIT
#include "screens/archive/mounted_volumes.h"

#include <algorithm>

#include <QFileInfo>
#include <QStorageInfo>

namespace rbt {

namespace {

Volume VolumeOf(const QStorageInfo& mounted) {
  const QString root = mounted.rootPath();
  const QString label = mounted.name();
  const QString caption = label.isEmpty() ? root : QStringLiteral("%1  [%2]").arg(root, label);
  return {.caption = caption.toStdString(), .root = root.toStdString()};
}

}  // namespace

std::vector<Volume> MountedVolumes() {
  const QList<QStorageInfo> all = QStorageInfo::mountedVolumes();
  std::vector<Volume> volumes;
  volumes.reserve(static_cast<std::size_t>(all.size()));
  for (const QStorageInfo& mounted : all) {
    // A single file can be a mount too.
    if (!mounted.isValid() || !QFileInfo(mounted.rootPath()).isDir()) continue;
    Volume volume = VolumeOf(mounted);
    const bool listed =
        std::ranges::any_of(volumes, [&](const Volume& other) { return other.root == volume.root; });
    if (!listed) volumes.push_back(std::move(volume));
  }
  return volumes;
}

}  // namespace rbt
