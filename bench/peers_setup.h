#pragma once

#include "model/attribute_model.h"
#include "tradeoffs/core/judgment_store.h"

// GSL
#include <gsl/gsl_interp.h>
#include <gsl/gsl_multifit.h>

// Eigen
#include <Eigen/Dense>

// Std
#include <cstdint>
#include <string>
#include <vector>

namespace tnw::bench {

// K(K - 1) judgments as the trade-off page records them: every ordered pair of attributes once,
// the first attribute's value difference positive and the second's negative (four decimals, as
// SingleAttValue gives them), and a verbal response -3..3 that follows hidden weights with some
// noise.
tradeoffs::JudgmentStore judgmentData(int k);

// gsl_multifit_linear on the centred observations: the coefficients and their covariance.
class GslFit {
 public:
  // Copies the observations of store for k attributes.
  GslFit(const tradeoffs::JudgmentStore& store, int k);
  ~GslFit();
  GslFit(const GslFit&) = delete;
  GslFit& operator=(const GslFit&) = delete;
  // Centres the observations and fits them.
  void run();
  // Coefficient i (0-based) of the last fit.
  double coefficient(int i) const;
  // The error term of coefficient i as the regression reports it: the covariance's diagonal
  // scaled to N - K - 1 degrees of freedom.
  double errorTerm(int i) const;

 private:
  int m_n = 0;
  int m_k = 0;
  std::vector<double> m_x;
  std::vector<double> m_y;
  gsl_matrix* m_centred = nullptr;
  gsl_vector* m_response = nullptr;
  gsl_vector* m_coef = nullptr;
  gsl_matrix* m_cov = nullptr;
  gsl_multifit_linear_workspace* m_work = nullptr;
};

// The normal equations at their floor: X'X by Eigen's rank update, an LLT, the coefficients and
// the inverse's diagonal.
class EigenFit {
 public:
  // Copies the observations of store for k attributes.
  EigenFit(const tradeoffs::JudgmentStore& store, int k);
  // Centres the observations and fits them.
  void run();
  // Coefficient i (0-based) of the last fit.
  double coefficient(int i) const { return m_coef(i); }

 private:
  Eigen::MatrixXd m_x;
  Eigen::VectorXd m_y;
  Eigen::MatrixXd m_cross;
  Eigen::VectorXd m_coef;
  Eigen::VectorXd m_errorTerm;
};

// One attribute with an 11-point value function, scores 0..100 rising.
AttributeModel elevenPointModel();
// Scores spread over the function's range.
std::vector<double> evaluationScores();

// GSL's Akima spline over the same points, initialised anew for every evaluation.
class GslAkima {
 public:
  // Copies the points of attribute 0 of model.
  explicit GslAkima(const AttributeModel& model);
  ~GslAkima();
  GslAkima(const GslAkima&) = delete;
  GslAkima& operator=(const GslAkima&) = delete;
  // gsl_interp_init and gsl_interp_eval at score.
  double initAndEval(double score);

 private:
  std::vector<double> m_x;
  std::vector<double> m_y;
  gsl_interp* m_interp = nullptr;
};

// A full model file (31 attributes, 11-point value functions) in the temporary directory,
// removed again when this goes.
class TempModelFile {
 public:
  TempModelFile();
  ~TempModelFile();
  TempModelFile(const TempModelFile&) = delete;
  TempModelFile& operator=(const TempModelFile&) = delete;
  // Its path.
  const std::string& path() const { return m_path; }

 private:
  std::string m_path;
};

// open(), read() into buffer until the end, close(): the bytes read.
std::size_t plainRead(const std::string& path, std::vector<std::uint8_t>& buffer);

// Checks that our outputs agree with the peers' and prints how closely; false when they do not.
bool checkAgreement();

}  // namespace tnw::bench
