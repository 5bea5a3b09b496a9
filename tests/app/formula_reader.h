#pragma once
// Reads a substituted formula of the "Passo a passo" as a reader would and works
// it out: numbers (units after them are skipped), + − · / ^ ² ³, parentheses,
// √(...), max, min, ln. Anything it cannot read throws, so a garbled formula fails.
#include <cmath>
#include <stdexcept>
#include <string>

class FormulaReader {
public:
    static double evaluate(const std::string& text) {
        FormulaReader r(text);
        double v = r.sum();
        r.blanks();
        if (r.i_ != r.s_.size()) throw std::runtime_error("sobra: " + text.substr(r.i_));
        return v;
    }

private:
    explicit FormulaReader(const std::string& s) : s_(s) {}
    bool at(const char* token) {
        blanks();
        std::size_t n = std::char_traits<char>::length(token);
        if (s_.compare(i_, n, token) != 0) return false;
        i_ += n;
        return true;
    }
    void blanks() {
        while (i_ < s_.size() && s_[i_] == ' ') ++i_;
    }
    double sum() {
        double v = product();
        for (;;) {
            if (at("+")) v += product();
            else if (at("−") || at("-")) v -= product();
            else return v;
        }
    }
    double product() {
        double v = power();
        for (;;) {
            if (at("·") || at("*")) v *= power();
            else if (at("/")) v /= power();
            else return v;
        }
    }
    double power() {
        double v = unary();
        if (at("²")) return v * v;
        if (at("³")) return v * v * v;
        if (at("^")) return std::pow(v, unary());
        return v;
    }
    double unary() {
        if (at("−") || at("-")) return -unary();
        return atom();
    }
    double group() {
        if (!at("(")) throw std::runtime_error("falta ( em " + s_);
        double v = sum();
        if (!at(")")) throw std::runtime_error("falta ) em " + s_);
        return v;
    }
    double arguments(bool largest) {
        if (!at("(")) throw std::runtime_error("falta ( em " + s_);
        double v = sum();
        while (at(",")) {
            double w = sum();
            v = largest ? std::fmax(v, w) : std::fmin(v, w);
        }
        if (!at(")")) throw std::runtime_error("falta ) em " + s_);
        return v;
    }
    double atom() {
        blanks();
        if (at("√")) return std::sqrt(group());
        if (at("max")) return arguments(true);
        if (at("min")) return arguments(false);
        if (at("ln")) return std::log(group());
        if (i_ < s_.size() && s_[i_] == '(') return group();
        std::size_t end = i_;
        while (end < s_.size() && (std::isdigit(static_cast<unsigned char>(s_[end])) || s_[end] == '.')) ++end;
        if (end == i_) throw std::runtime_error("número esperado em " + s_.substr(i_));
        double v = std::stod(s_.substr(i_, end - i_));
        i_ = end;
        skipUnit();
        return v;
    }
    // A unit follows its number after one blank and runs to the next blank, comma
    // or closing parenthesis: "kN/cm²", "kN·m", "‰", "MPa".
    void skipUnit() {
        if (i_ + 1 >= s_.size() || s_[i_] != ' ') return;
        const unsigned char c = static_cast<unsigned char>(s_[i_ + 1]);
        const bool letter = std::isalpha(c) || s_.compare(i_ + 1, 3, "‰") == 0 || c == '%';
        if (!letter) return;
        ++i_;
        while (i_ < s_.size() && s_[i_] != ' ' && s_[i_] != ')' && s_[i_] != ',') ++i_;
    }
    const std::string& s_;
    std::size_t i_ = 0;
};
