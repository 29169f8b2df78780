#pragma once
// The real files with faults in between, for the tests of what saving leaves behind.

#include "platform/file_operations.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace varrocade::tests {

/// The real files, but for the operations that `fails` says.
class FaultyFiles : public FileOperations {
public:
    bool read(const std::string& path, std::string& content) override {
        return !fails() && systemFiles().read(path, content);
    }
    bool exists(const std::string& path) override { return systemFiles().exists(path); }
    std::unique_ptr<OutputFile> createNew(const std::string& path) override {
        if (fails()) {
            return nullptr;
        }
        auto file = systemFiles().createNew(path);
        return file ? std::make_unique<FaultyOutput>(*this, std::move(file)) : nullptr;
    }
    bool replace(const std::string& from, const std::string& to) override {
        return !fails() && systemFiles().replace(from, to);
    }
    bool rename(const std::string& from, const std::string& to) override {
        return !fails() && systemFiles().rename(from, to);
    }
    bool remove(const std::string& path) override { return !fails() && systemFiles().remove(path); }
    bool recycle(const std::string& path) override { return !fails() && systemFiles().recycle(path); }
    bool createFolder(const std::string& path) override {
        return !fails() && systemFiles().createFolder(path);
    }
    std::string lastError() override { return "the disk is full"; }

protected:
    /// Asked before each operation, and several times for each output file.
    virtual bool fails() = 0;

private:
    class FaultyOutput : public OutputFile {
    public:
        FaultyOutput(FaultyFiles& files, std::unique_ptr<OutputFile> file)
            : files_(files), file_(std::move(file)) {}
        std::size_t write(std::string_view bytes) override {
            if (files_.fails()) {
                return 0;
            }
            // Never more than half of a longer text at a time, as a slow device would take it.
            return file_->write(bytes.substr(0, (bytes.size() + 1) / 2));
        }
        bool flush() override { return !files_.fails() && file_->flush(); }
        bool close() override {
            // The system's file is closed in any case, so that it can be removed.
            return file_->close() && !files_.fails();
        }

    private:
        FaultyFiles& files_;
        std::unique_ptr<OutputFile> file_;
    };
};

/// One operation fails: the one with the number `failing`, from 1; 0 for none.
class FailingOnce : public FaultyFiles {
public:
    explicit FailingOnce(int failing) : failing_(failing) {}

    [[nodiscard]] bool hasFailed() const { return failing_ > 0 && operations_ >= failing_; }

protected:
    bool fails() override { return ++operations_ == failing_; }

private:
    int operations_ = 0;
    int failing_;
};

} // namespace varrocade::tests
