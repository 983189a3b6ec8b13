#pragma once

namespace lumenkit::win32 {

/// The life of an object whose destruction is deferred until none of its code runs. Used only on
/// the object's thread.
class Life {
 public:
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    /// Keeps the object alive as long as the hold exists. Code after the outermost hold must not
    /// use the object.
    class Hold {
     public:
        /// If `life` is null, there is nothing to hold.
        explicit Hold(Life* life) : life_(life) {
            if (life_ != nullptr) {
                ++life_->holds_;
            }
        }
        ~Hold() {
            if (life_ != nullptr) {
                life_->LetGo();
            }
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

     private:
        Life* life_;
    };

    int Holds() const { return holds_; }

 protected:
    Life() = default;
    ~Life() = default;

    /// Runs End when the last hold is released. At least one hold must exist.
    void EndLater() { waits_ = true; }
    virtual void End() = 0;

 private:
    void LetGo() {
        if (--holds_ == 0 && waits_) {
            waits_ = false;
            End();
        }
    }

    int holds_ = 0;
    bool waits_ = false;
};

}  // namespace lumenkit::win32
