% The MEX gateway in Octave: published values through arrays of any shape,
% scalars broadcast, NaN and codes where points fail, pair and 14-output
% rows, gas texts and ids, settings, the list, bad calls refused, and every
% answer bit for bit what the Linux calculator (the exports) gives.
%   KVTCALC=build/release/kvtcalc octave-cli --eval "addpath(MEXDIR); test_kvt"
function test_kvt()
  failed = 0;
  function check(ok, what)
    if ~all(ok(:))
      failed = failed + 1;
      printf('failed: %s\n', what);
    end
  end
  % The exports' answer through the calculator, printed to 17 digits.
  function y = export(varargin)
    [status, out] = system(sprintf('"%s" --exact %s', getenv('KVTCALC'), strjoin(varargin, ' ')));
    y = str2double(strtrim(out));
    if status ~= 0, y = NaN; end
  end

  % IF97 tables 5 and 15: p [Pa], T [K], h [J/kg], as a 2x2 and a 1x1x4.
  p = [3e6 80e6; 3500 30e6];  T = [300 300; 300 700];
  h = [0.115331273e6 0.184142828e6; 0.254991145e7 0.263149474e7];
  check(isequal(size(kvt('HPT', p, T)), [2 2]), 'shape of a 2x2');
  check(abs(kvt('HPT', p, T) ./ h - 1) < 1e-8, 'HPT against IF97');
  check(isequal(size(kvt('HPT', reshape(p, 1, 1, 4), 300)), [1 1 4]), 'shape of a 1x1x4');

  % Scalars broadcast; a point out of range is NaN with code 2.
  [y, codes] = kvt('HPT', [1e5; 3e6; 1e12], 450);
  check(isequal(codes, int32([0; 0; 2])) && isnan(y(3)) && ~any(isnan(y(1:2))), 'NaN and code 2');
  check(y(2) == export('HPT', '3e6', '450'), 'HPT bit for bit as the export');
  check(kvt('TPH', 3e6, [1e5 5e5 3e6]) == arrayfun(@(x) export('TPH', '3e6', num2str(x)), [1e5 5e5 3e6]), ...
        'TPH bit for bit as the export');

  % A pair row inverts h and s; a 14-output row gives h and cp in place.
  [pp, TT, c] = kvt('PTHS', kvt('HPT', 3e6, [400 500]), kvt('SPT', 3e6, [400 500]));
  check(abs(pp / 3e6 - 1) < 1e-8 & abs(TT ./ [400 500] - 1) < 1e-8 & c == 0, 'PTHS inverts h and s');
  out = cell(1, 15);
  [out{:}] = kvt('VUSHCVWDERPT1PT', 3e6, [300 350]);
  check(abs(out{4} ./ kvt('H1PT', 3e6, [300 350]) - 1) < 1e-12 & abs(out{14} ./ kvt('CP1PT', 3e6, [300 350]) - 1) < 1e-12, ...
        '14 outputs: h and cp');
  check(isequal(out{1}, kvt('V1PT', 3e6, [300 350])) && isequal(out{15}, int32([0 0])), '14 outputs: v, codes');
  check(isequal(kvt('VUSHCVWDERPT1PT', 3e6, [300 350]), out{1}), 'one output asked of 14: v');

  % Gases by text and by id, and a gas of the session.
  air = 'N2:0.79;O2:0.21';
  check(kvt('gCPGST', air, [300 500]) == [export('gCPGST', ['"' air '"'], '300'), ...
        export('gCPGST', ['"' air '"'], '500')], 'gas text bit for bit as the export');
  check(kvt('gCPIDT', [0 1], 500) == [export('gCPIDT', '0', '500'), export('gCPIDT', '1', '500')], 'gas ids');
  id = kvt('newgas', air);
  check(kvt('gCPIDT', id, 500) == kvt('gCPGST', air, 500), 'a new gas by its id');
  [~, codes] = kvt('gCPGST', 'N2:1 kg', 500);
  check(codes == 11, 'a bad gas text gives code 11');

  % Settings: backward equations only move T(p,h) a little.
  refined = kvt('TPH', 3e6, 3e6);
  kvt('set', 'toleranceMode', 0);
  check(kvt('get', 'toleranceMode') == 0, 'get what was set');
  rough = kvt('TPH', 3e6, 3e6);
  kvt('set', 'toleranceMode', 1);
  check(rough ~= refined && abs(rough / refined - 1) < 1e-4, 'toleranceMode 0 gives the backward equation');
  kvt('set', 'threads', 2);
  check(isequal(kvt('HPT', 3e6, linspace(300, 800, 1000)), arrayfun(@(t) kvt('HPT', 3e6, t), linspace(300, 800, 1000))), ...
        'two threads give the same numbers');
  kvt('set', 'threads', 1);

  % The list, and calls that are refused with an error.
  [names, info] = kvt('list');
  check(numel(names) == 348 && any(strcmp(names, 'HPT')), 'the list has every row');
  check(isequal(info(strcmp(names, 'PTHS')).outputs, {'p', 'T'}), 'the list tells the outputs');
  bad = {{'NOSUCH', 1}, {'HPT', 1}, {'HPT', [1 2], [1 2 3]}, {'HPT', 'a', 1}, {'SETTOLERANCE', 1}, ...
         {'set', 'noSuchSetting', 1}, {'gCPGST', 5, 300}};
  for k = 1:numel(bad)
    try
      kvt(bad{k}{:});
      check(false, sprintf('refused: kvt(''%s'', ...)', bad{k}{1}));
    catch
    end
  end

  printf('%d failed\n', failed);
  if failed, exit(1); end
end
