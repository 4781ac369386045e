% Irregular sea of 2.5 m significant height, the same in every run. The amplitude of a component is
% sqrt(2 S), without the spacing of the frequencies. Hs is therefore the desired height times the
% root of the spacing, here 2.5 m * sqrt(2 pi 0.0025 Hz) = 2.5 m * 0.125331.
environment.ground.level = -60; % m
environment.wave = {
   type       = JONSWAP;
   Hs         = 0.313329;
   fp         = 0.1;   % Hz
   gamma      = 3.3;
   f0         = 0.04;  % Hz
   f1         = 0.34;  % Hz
   components = 121;   % every 0.0025 Hz: the sea repeats itself after 400 s
   direction  = 15;    % degrees from x towards y
   seed       = 2024;  % -1 draws a new sea in every run
   rampTime   = 20;    % s
}
simulation.time.end = 420;  % s, the ramp and one period
simulation.print.dt = 0.5;  % s
