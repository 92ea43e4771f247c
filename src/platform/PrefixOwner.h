#pragma once
// Run as root, the files of a prefix that another user owns are written as
// that user (the prefix folder's owner and group): they keep their owner and
// mode, and nothing is written where that user could not write, whatever the
// user's own zorel.ini names. A prefix owned by root is done as root, and a
// program not run as root acts as itself.

#include "platform/Failure.h"

#include <QString>

#include <sys/types.h>

#include <vector>

namespace brimo {

class ActingAsPrefixOwner {
public:
    // `statusIfStuck`: the exit status of the process should it fail to
    // become root again, since going on as the other user would do the next
    // prefix wrong.
    ActingAsPrefixOwner(const QString& prefix, int statusIfStuck);
    ~ActingAsPrefixOwner();
    ActingAsPrefixOwner(const ActingAsPrefixOwner&) = delete;
    ActingAsPrefixOwner& operator=(const ActingAsPrefixOwner&) = delete;

    // Why the process could not become the owner (NotOwner); none when it
    // acts as it.
    const Failure& failure() const { return failure_; }

private:
    void back();
    std::vector<gid_t> groups_;
    gid_t gid_ = 0;
    bool switched_ = false;
    int statusIfStuck_;
    Failure failure_;
};

} // namespace brimo
