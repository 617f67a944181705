#include "peers_setup.h"

#include "common/core/recording_ui_services.h"
#include "model/model_file_reader.h"
#include "model/model_file_writer.h"
#include "model/value_function.h"
#include "tradeoffs/core/regression.h"
#include "tradeoffs/core/tradeoff_weights.h"

// GSL
#include <gsl/gsl_errno.h>

// POSIX
#include <fcntl.h>
#include <unistd.h>

// Std
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <random>
#include <span>

namespace tnw::bench {

tradeoffs::JudgmentStore judgmentData(int k) {
  std::mt19937 rng(20240611u + static_cast<unsigned>(k));
  std::uniform_real_distribution<double> weight(0.2, 1.0);
  std::uniform_real_distribution<double> diff(0.05, 1.0);
  std::normal_distribution<double> noise(0.0, 0.6);
  std::vector<double> w(static_cast<std::size_t>(k));
  double sum = 0.0;
  for (double& v : w) sum += (v = weight(rng));
  tradeoffs::JudgmentStore s;
  const int n = k * (k - 1);
  s.dimension(n, k);
  int row = 0;
  for (int a = 0; a < k; ++a) {
    for (int b = 0; b < k; ++b) {
      if (a == b) continue;
      const auto r = static_cast<std::size_t>(row++);
      const double da = std::round(diff(rng) * 1e4) / 1e4;
      const double db = -std::round(diff(rng) * 1e4) / 1e4;
      s.ValueDiff[r][static_cast<std::size_t>(a)] = da;
      s.ValueDiff[r][static_cast<std::size_t>(b)] = db;
      // A strong preference for A (the gain on a outweighs the loss on b) is -3.
      const double u = (w[static_cast<std::size_t>(a)] * da + w[static_cast<std::size_t>(b)] * db) /
                       sum * k * 3.0;
      s.PrefResponse[r] =
          static_cast<std::int16_t>(std::clamp(std::round(-u + noise(rng)), -3.0, 3.0));
    }
  }
  s.JudgmentCount = n;
  return s;
}

GslFit::GslFit(const tradeoffs::JudgmentStore& store, int k) : m_n(store.JudgmentCount), m_k(k) {
  for (int r = 0; r < m_n; ++r) {
    const auto& row = store.ValueDiff[static_cast<std::size_t>(r)];
    m_x.insert(m_x.end(), row.begin(), row.begin() + k);
    m_y.push_back(store.PrefResponse[static_cast<std::size_t>(r)]);
  }
  const auto n = static_cast<std::size_t>(m_n);
  const auto kk = static_cast<std::size_t>(k);
  m_centred = gsl_matrix_alloc(n, kk);
  m_response = gsl_vector_alloc(n);
  m_coef = gsl_vector_alloc(kk);
  m_cov = gsl_matrix_alloc(kk, kk);
  m_work = gsl_multifit_linear_alloc(n, kk);
}

GslFit::~GslFit() {
  gsl_multifit_linear_free(m_work);
  gsl_matrix_free(m_cov);
  gsl_vector_free(m_coef);
  gsl_vector_free(m_response);
  gsl_matrix_free(m_centred);
}

void GslFit::run() {
  const auto n = static_cast<std::size_t>(m_n);
  const auto k = static_cast<std::size_t>(m_k);
  std::vector<double> mean(k, 0.0);
  double yMean = 0.0;
  for (std::size_t r = 0; r < n; ++r) {
    for (std::size_t j = 0; j < k; ++j) mean[j] += m_x[r * k + j];
    yMean += m_y[r];
  }
  for (double& v : mean) v /= m_n;
  yMean /= m_n;
  for (std::size_t r = 0; r < n; ++r) {
    for (std::size_t j = 0; j < k; ++j) gsl_matrix_set(m_centred, r, j, m_x[r * k + j] - mean[j]);
    gsl_vector_set(m_response, r, m_y[r] - yMean);
  }
  double chisq = 0.0;
  gsl_multifit_linear(m_centred, m_response, m_coef, m_cov, &chisq, m_work);
}

double GslFit::coefficient(int i) const {
  return gsl_vector_get(m_coef, static_cast<std::size_t>(i));
}

double GslFit::errorTerm(int i) const {
  const auto ii = static_cast<std::size_t>(i);
  return gsl_matrix_get(m_cov, ii, ii) * (m_n - m_k) / (m_n - m_k - 1);
}

EigenFit::EigenFit(const tradeoffs::JudgmentStore& store, int k)
    : m_x(store.JudgmentCount, k), m_y(store.JudgmentCount) {
  for (int r = 0; r < store.JudgmentCount; ++r) {
    const auto rr = static_cast<std::size_t>(r);
    for (int j = 0; j < k; ++j) m_x(r, j) = store.ValueDiff[rr][static_cast<std::size_t>(j)];
    m_y(r) = store.PrefResponse[rr];
  }
}

void EigenFit::run() {
  const Eigen::RowVectorXd mean = m_x.colwise().mean();
  const Eigen::MatrixXd centred = m_x.rowwise() - mean;
  const Eigen::VectorXd response = m_y.array() - m_y.mean();
  const auto k = m_x.cols();
  m_cross.setZero(k, k);
  m_cross.selfadjointView<Eigen::Lower>().rankUpdate(centred.transpose());
  const Eigen::LLT<Eigen::MatrixXd> llt(m_cross);
  const Eigen::VectorXd xy = centred.transpose() * response;
  m_coef = llt.solve(xy);
  const double sse = response.squaredNorm() - m_coef.dot(xy);
  const Eigen::MatrixXd inverse = llt.solve(Eigen::MatrixXd::Identity(k, k));
  m_errorTerm = inverse.diagonal() * (sse / static_cast<double>(m_x.rows() - k - 1));
}

AttributeModel elevenPointModel() {
  AttributeModel m;
  m.NumAtt = 1;
  m.NumPoints[0] = kMaxPoints;
  for (std::size_t p = 0; p < kMaxPoints; ++p) {
    const double s = 10.0 * static_cast<double>(p);
    m.PointScore[0][p] = s;
    m.PointValue[0][p] = std::round(std::sqrt(s / 100.0) * 1e4) / 1e4;
  }
  return m;
}

std::vector<double> evaluationScores() {
  std::vector<double> scores;
  for (int i = 0; i < 256; ++i) scores.push_back(100.0 * i / 255.0);
  return scores;
}

GslAkima::GslAkima(const AttributeModel& model) {
  for (std::size_t p = 0; p < kMaxPoints; ++p) {
    m_x.push_back(model.PointScore[0][p].value_or(0.0));
    m_y.push_back(model.PointValue[0][p].value_or(0.0));
  }
  m_interp = gsl_interp_alloc(gsl_interp_akima, m_x.size());
}

GslAkima::~GslAkima() { gsl_interp_free(m_interp); }

double GslAkima::initAndEval(double score) {
  gsl_interp_init(m_interp, m_x.data(), m_y.data(), m_x.size());
  return gsl_interp_eval(m_interp, m_x.data(), m_y.data(), score, nullptr);
}

TempModelFile::TempModelFile()
    : m_path((std::filesystem::temp_directory_path() /
              ("tnw-peers-" + std::to_string(getpid()) + ".nrx"))
                 .string()) {
  AttributeModel m;
  m.NumAtt = kMaxAttributes;
  for (std::size_t a = 0; a < kMaxAttributes; ++a) {
    m.AttName[a] = "Attribute " + std::to_string(a + 1);
    m.AttDefinition[a] =
        "What attribute " + std::to_string(a + 1) + " measures, and in which unit.";
    m.AttOrientation[a] = a % 2 == 0 ? "0" : "1";
    m.AttScoreHigh[a] = 100.0;
    m.NumPoints[a] = kMaxPoints;
    for (std::size_t p = 0; p < kMaxPoints; ++p) {
      m.PointScore[a][p] = 10.0 * static_cast<double>(p);
      m.PointValue[a][p] = static_cast<double>(p * p) / 100.0;
    }
    m.PrevWeight[a] = 1.0 / 31.0;
  }
  m.PrevTNType = "MAVT_DIRECT";
  ModelFileWriter::writeFile(m, m_path);
}

TempModelFile::~TempModelFile() { std::remove(m_path.c_str()); }

std::size_t plainRead(const std::string& path, std::vector<std::uint8_t>& buffer) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return 0;
  std::size_t total = 0;
  for (;;) {
    const ssize_t got = ::read(fd, buffer.data(), buffer.size());
    if (got <= 0) break;
    total += static_cast<std::size_t>(got);
  }
  ::close(fd);
  return total;
}

namespace {

double relativeDifference(const std::vector<double>& a, const std::vector<double>& b) {
  double diff = 0.0;
  double scale = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    diff = std::max(diff, std::fabs(a[i] - b[i]));
    scale = std::max(scale, std::fabs(b[i]));
  }
  return scale > 0.0 ? diff / scale : diff;
}

bool checkRegression(int k) {
  tradeoffs::JudgmentStore store = judgmentData(k);
  tradeoffs::TradeOffWeights weights;
  tradeoffs::MultiRegressionData record;
  tradeoffs::Regression reg;
  reg.RegressMain(store, k, record, weights);
  GslFit gsl(store, k);
  gsl.run();
  std::vector<double> ours;
  std::vector<double> theirs;
  std::vector<double> oursVar;
  std::vector<double> theirsVar;
  for (int i = 0; i < k; ++i) {
    ours.push_back(reg.work().RegCoef[static_cast<std::size_t>(i + 1)]);
    theirs.push_back(gsl.coefficient(i));
    oursVar.push_back(reg.work().CoefVar[static_cast<std::size_t>(i + 1)]);
    theirsVar.push_back(gsl.errorTerm(i));
  }
  const double dc = relativeDifference(ours, theirs);
  const double dv = relativeDifference(oursVar, theirsVar);
  const bool ok = !reg.failed() && dc <= 1e-12 && dv <= 1e-12;
  std::printf(
      "regression K=%-2d vs GSL: coefficients %.1e, error terms %.1e (max |diff| / max |GSL|)%s\n",
      k, dc, dv, ok ? "" : "  DISAGREE");
  return ok;
}

// The largest relative difference between gnspl and GSL's Akima over the scores.
double akimaDifference(const AttributeModel& m) {
  GslAkima gsl(m);
  const int n = m.NumPoints[0];
  const auto x = std::span(m.PointScore[0]).first(static_cast<std::size_t>(n));
  const auto y = std::span(m.PointValue[0]).first(static_cast<std::size_t>(n));
  double worst = 0.0;
  for (const double s : evaluationScores()) {
    const auto r = gnspl(x, y, n, false, s);
    const double ours = r && (*r)[4] ? *(*r)[4] : NAN;
    const double theirs = gsl.initAndEval(s);
    worst = std::max(worst, std::fabs(ours - theirs) / std::max(1.0, std::fabs(theirs)));
  }
  return worst;
}

}  // namespace

bool checkAgreement() {
  gsl_set_error_handler_off();
  bool ok = true;
  for (const int k : {3, 8, 16, 31}) ok = checkRegression(k) && ok;
  const double smooth = akimaDifference(elevenPointModel());
  ok = ok && smooth <= 1e-14;
  std::printf("Akima vs GSL, no two equal neighbouring slopes: %.1e%s\n", smooth,
              smooth <= 1e-14 ? "" : "  DISAGREE");
  // Where the slopes on both sides of a point's neighbours are equal (a straight stretch next
  // to a bend), Akima's weights are 0/0: we take the mean of the two middle slopes, GSL the
  // slope to the right and a straight interval, so the two differ there by design.
  AttributeModel bent = elevenPointModel();
  for (std::size_t p = 0; p < kMaxPoints; ++p) {
    bent.PointValue[0][p] = p < 5 ? 0.05 * static_cast<double>(p) : 0.25 + 0.15 * (p - 5.0);
  }
  std::printf("Akima vs GSL, straight stretches meeting at a bend (0/0 weights): %.1e\n",
              akimaDifference(bent));
  return ok;
}

}  // namespace tnw::bench
