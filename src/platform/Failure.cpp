#include "platform/Failure.h"

#include <cerrno>

namespace brimo {

Failure FailureOfErrno(int error) {
    const FailureKind kind = [error] {
        switch (error) {
        case ENOSPC:
        case EDQUOT: return FailureKind::NoSpace;
        case EROFS: return FailureKind::ReadOnlyDisk;
        case EACCES:
        case EPERM: return FailureKind::NoPermission;
        case EFBIG: return FailureKind::SizeLimit;
        case ENOENT: return FailureKind::Missing;
        case EISDIR: return FailureKind::FolderInTheWay;
        case ELOOP: return FailureKind::LinkLoop;
        default: return FailureKind::System;
        }
    }();
    return {kind, error, 0, {}};
}

} // namespace brimo
