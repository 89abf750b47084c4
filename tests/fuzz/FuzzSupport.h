#pragma once
// Shared set-up of the fuzz targets: one Qt application, silenced logging, a
// scratch data pack with empty databases and a scratch user folder. Every
// target links FuzzSupport.cpp, which provides LLVMFuzzerInitialize.
#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>

namespace qor::fuzz {

// The scratch pack folder (active as the resource folder) and user folder.
QString packDir();
QString userDir();

QByteArray bytes(const uint8_t* data, size_t size);
void writeFile(const QString& path, const QByteArray& bytes);

// True when a line splits into exactly 6 "^" fields: the materials file's
// deliberate abort, not a finding.
bool hasSixFieldLine(const QByteArray& text);

} // namespace qor::fuzz
