% A barge on two mooring lines, in irregular waves. One entry a line.
environment = {
    waterDensity = 1025        % kg/m3
    gravity      = -9.81
    ground = {
        level     = -60        % m
        stiffness = 3e6
    }
    wave = {
        type       = JONSWAP
        Hs         = 0.255831  % for a sea of 2.5 m: 2.5 m * sqrt(2 pi / 600 s)
        fp         = 0.11      % peak frequency, Hz
        gamma      = 3.3
        f0         = 0.055     % Hz
        f1         = 0.55      % Hz
        components = 298       % every 1/600 Hz: the sea repeats itself after 600 s
        seed       = 42
        direction  = 30        % degrees from the x axis
    }
}

hydroBody1 = {
    mass     = 49200            % kg, for a draught of 1.5 m
    position = [0, 0, 0]
    bemInput = {
        meshName = ../1-hull/barge.stl
        position = [0, 0, 0]
    }
}

line1 = {
    type     = chain
    length   = 180
    anchor   = [-150; 0; -60]
    fairlead = (-4, 0, -0.5)
    material.diameter = 0.05
    material.EA       = 1.2e8
}
line2 = {
    source   = line1           % all other entries are those of line1
    anchor   = [150; 0; -60]
    fairlead = (4, 0, -0.5)
}

simulation.time.start = 0
simulation.time.end   = 600
simulation.print.dt   = 0.1
