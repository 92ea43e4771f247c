#include "platform/PrefixOwner.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimo {

ActingAsPrefixOwner::ActingAsPrefixOwner(const QString& prefix, int statusIfStuck) : statusIfStuck_(statusIfStuck) {
    struct stat info {};
    if (::geteuid() != 0 || ::stat(QFile::encodeName(prefix).constData(), &info) != 0 || info.st_uid == 0) return;
    groups_.resize(static_cast<std::size_t>(std::max(::getgroups(0, nullptr), 0)));
    groups_.resize(static_cast<std::size_t>(std::max(::getgroups(static_cast<int>(groups_.size()), groups_.data()), 0)));
    gid_ = ::getegid();
    switched_ = true;
    if (::setgroups(1, &info.st_gid) != 0 || ::setegid(info.st_gid) != 0 || ::seteuid(info.st_uid) != 0) {
        failure_ = {FailureKind::NotOwner, errno, info.st_uid, {}};
        back();
    }
}

ActingAsPrefixOwner::~ActingAsPrefixOwner() { back(); }

void ActingAsPrefixOwner::back() {
    if (!switched_) return;
    switched_ = false;
    if (::seteuid(0) != 0 || ::setegid(gid_) != 0 || ::setgroups(groups_.size(), groups_.data()) != 0) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s: cannot become root again: %s\n", program_invocation_short_name, std::strerror(errno));
        std::_Exit(statusIfStuck_);
    }
}

} // namespace brimo
