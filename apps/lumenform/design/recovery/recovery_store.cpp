#include "apps/lumenform/design/recovery/recovery_store.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QUuid>
#include <algorithm>
#include <filesystem>
#include <string>

#include "forms/form_error.h"
#include "forms/path_names.h"
#include "forms/save.h"

namespace lumenkit::lumenform {

namespace {

// The files of a copy. Form and companion are one file, because they change together: the first
// bytes of the length that the description has are the form.
QString WorkIn(const QString& folder) {
    return folder + QStringLiteral("/work");
}
QString LockIn(const QString& folder) {
    return folder + QStringLiteral("/lock");
}

constexpr char lineEnd = '\n';

// The first line of the work: its description as "key=value" pairs that are percent-encoded.
QByteArray Described(const RecoveredWork& work, std::size_t formSize) {
    const auto encoded = [](const QString& text) { return text.toUtf8().toPercentEncoding(); };
    return QByteArrayList{QByteArray("lumenform-recovery-1"),
                          QByteArray::number(static_cast<qulonglong>(formSize)),
                          QByteArray::number(work.codePage),
                          encoded(work.time.toString(Qt::ISODateWithMs)),
                          encoded(work.name),
                          encoded(work.path),
                          encoded(work.base)}
               .join(' ') +
           lineEnd;
}

struct Stored {
    RecoveredWork work;
    forms::FormBytes bytes;
    bool isValid = false;
};

Stored Read(const QString& folder) {
    Stored stored;
    QFile file(WorkIn(folder));
    if (!file.open(QIODevice::ReadOnly)) {
        return stored;
    }
    QByteArray first = file.readLine();
    first.chop(1);
    const QByteArrayList fields = first.split(' ');
    constexpr qsizetype fewest = 6;  // without the base
    if (fields.size() < fewest || fields[0] != "lumenform-recovery-1") {
        return stored;
    }
    const auto decoded = [](const QByteArray& text) {
        return QString::fromUtf8(QByteArray::fromPercentEncoding(text));
    };
    const std::string bytes = file.readAll().toStdString();
    bool isNumber = false;
    const std::size_t size = fields[1].toULongLong(&isNumber);
    if (!isNumber || size > bytes.size()) {
        return stored;
    }
    stored.work = {.folder = folder,
                   .path = decoded(fields[5]),
                   .name = decoded(fields[4]),
                   .time = QDateTime::fromString(decoded(fields[3]), Qt::ISODateWithMs),
                   .codePage = fields[2].toInt(),
                   .base = fields.size() > fewest ? decoded(fields[fewest]) : QString(),
                   .lock = nullptr};
    stored.bytes = {bytes.substr(0, size), bytes.substr(size)};
    stored.isValid = true;
    return stored;
}

}  // namespace

forms::FormBytes RecoveredWork::Bytes() const {
    Stored stored = Read(folder);
    if (!stored.isValid) {
        throw forms::FormError(
            name.toStdString(),
            QCoreApplication::translate("recovery", "has no unsaved work that can be read")
                .toStdString());
    }
    return std::move(stored.bytes);
}

void RecoveredWork::Remove() const {
    lock->unlock();
    QDir(folder).removeRecursively();
}

QString BaseOf(const forms::Document& document, const QString& path) {
    QStringList parts;
    const std::filesystem::path form(path.toStdU16String());
    for (const auto& file : {form, forms::CompanionToSave(document, form)}) {
        const forms::Fingerprint* const known = document.Files().Find(forms::Resolved(file));
        parts.append(known == nullptr ? QStringLiteral("-")
                                      : QStringLiteral("%1:%2").arg(known->size).arg(known->hash));
    }
    return parts.join(u',');
}

std::vector<RecoveredWork> AbandonedWork(const QString& store) {
    std::vector<RecoveredWork> found;
    if (store.isEmpty()) {
        return found;
    }
    const QFileInfoList folders = QDir(store).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& folder : folders) {
        auto lock = std::make_shared<QLockFile>(LockIn(folder.filePath()));
        lock->setStaleLockTime(0);  // only the end of its program makes a lock stale
        Stored stored = Read(folder.filePath());
        if (stored.isValid && lock->tryLock(0)) {
            stored.work.lock = std::move(lock);
            found.push_back(std::move(stored.work));
        }
    }
    std::ranges::sort(found, {}, &RecoveredWork::time);
    return found;
}

bool RecoveryCopy::Begin() {
    const QString folder = store_ + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    constexpr auto own = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (!QDir().mkpath(store_) || !QDir().mkdir(folder, own)) {
        return false;
    }
    lock_ = std::make_unique<QLockFile>(LockIn(folder));
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0)) {
        lock_.reset();
        QDir(folder).removeRecursively();
        return false;
    }
    folder_ = folder;
    return true;
}

bool RecoveryCopy::Write(const forms::Document& document, const QString& path) {
    if (store_.isEmpty() || (folder_.isEmpty() && !Begin())) {
        return false;
    }
    const forms::FormBytes bytes = document.Write();
    const QByteArray content = QByteArray::fromStdString(bytes.form + bytes.companion);
    const QString base = path.isEmpty() ? QString() : BaseOf(document, path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(content);
    hash.addData((path + base + QString::number(document.FormCodePage())).toUtf8());
    if (hash.result() == written_) {
        return true;  // its time stays
    }
    const RecoveredWork work{
        .folder = folder_,
        .path = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath(),
        .name = QFileInfo(QString::fromStdString(document.Name())).fileName(),
        .time = date_.isValid() ? date_ : QDateTime::currentDateTime(),
        .codePage = document.FormCodePage(),
        .base = base,
        .lock = nullptr};
    QSaveFile file(WorkIn(folder_));
    if (!file.open(QIODevice::WriteOnly) || file.write(Described(work, bytes.form.size())) <= 0 ||
        file.write(content) < 0 || !file.commit()) {
        return false;
    }
    date_ = {};
    written_ = hash.result();
    return true;
}

void RecoveryCopy::Remove() {
    if (!folder_.isEmpty()) {
        lock_->unlock();
        lock_.reset();
        QDir(folder_).removeRecursively();
        folder_.clear();
        written_.clear();
    }
}

}  // namespace lumenkit::lumenform
